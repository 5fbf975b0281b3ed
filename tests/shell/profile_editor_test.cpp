#include "shell/profile_editor.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "shell/profile_dialog.h"
#include "store/portrait.h"
#include "store/profiles.h"
#include "store/setup_data.h"
#include "tests/shell/application_fixture.h"

namespace lad::shell {
namespace {

const std::string kFirstProfile = "00000000-0000-0000-0001-000000000001";

class ProfileEditorTest : public lad::testing::ApplicationTest {
 protected:
  ProfileEditorTest() {
    launchApp();
    session = greetedSession();
  }

  void tap(const std::string& target) {
    ASSERT_TRUE(ApplicationTest::tap(*session, target).ok()) << target;
  }
  EventResult change(const std::string& field, const Value& value) {
    return ApplicationTest::change(*session, "field:" + field, value);
  }

  std::unique_ptr<Session> session;
};

// A date row's wheel opens on the row's own date: confirmed untouched, it gives the date back.
TEST_F(ProfileEditorTest, ADateWheelOpensOnItsRowsDate) {
  tap("menu:31");
  ASSERT_TRUE(change("sdat1", "01.05.2026").ok());
  tap("field:sdat1");
  ASSERT_TRUE(pick(*session, lad::testing::openedPositions(session->view()["popup"])).ok());
  EXPECT_EQ(rowWith(*session, "field", "sdat1")["source"].text(), "01.05.2026");
}

TEST_F(ProfileEditorTest, AnEmptiedRequiredDateKeepsTheEditorOpenAndCancelKeepsTheData) {
  tap("menu:31");
  EXPECT_FALSE(change("nosuchfield", "x").ok());
  EXPECT_FALSE(change("remove", "x").ok()) << "a new pregnancy has no removal";
  ASSERT_TRUE(change("sdat1", "").ok());
  ASSERT_TRUE(change("sbirthdate", "").ok());
  ASSERT_TRUE(change("sdat2", "").ok());
  tap("editor:ok");
  EXPECT_EQ(session->view()["message"]["caption"].text(), "Ошибка");
  tap("message:ok");
  tap("editor:cancel");  // taken by the editor, still open
  EXPECT_EQ(session->view()["kind"].text(), "page");
  EXPECT_EQ(loadProfils(app->store()).size(), 1u) << "cancel saves nothing";
}

TEST_F(ProfileEditorTest, APortraitIsCheckedWhenChosenAndWrittenWhenSaved) {
  EXPECT_FALSE(ApplicationTest::tap(*session, "menu:22").ok()) << "no profile is open";
  tap("card:" + kFirstProfile);
  tap("menu:22");
  for (const char* notAPicture : {"data:image/png;base64,AAAA", "http://elsewhere/x.jpg"}) {
    ASSERT_TRUE(change("photo", notAPicture).ok());
    EXPECT_EQ(session->view()["message"]["text"].text(), "Не удалось прочитать фотографию")
        << notAPicture;
    tap("message:ok");
  }
  ASSERT_TRUE(change("photo", jpegDataUrl(8, 4)).ok());
  const Value photo = rowWith(*session, "field", "photo");
  EXPECT_TRUE(photo["source"].isNull()) << "the picture's bytes stay on the server";
  const auto portrait = portraitFile(app->context(), kFirstProfile);
  EXPECT_FALSE(std::filesystem::exists(portrait)) << "nothing is written before saving";
  tap("editor:ok");
  EXPECT_TRUE(std::filesystem::exists(portrait));

  tap("menu:22");
  ASSERT_TRUE(change("photo", Value()).ok());
  tap("editor:ok");
  EXPECT_FALSE(std::filesystem::exists(portrait)) << "a taken-away portrait is removed";

  // The removal's question (answered in the browser test) covers the editor.
  tap("menu:22");
  tap("field:remove");
  EXPECT_FALSE(change("name", "x").ok());
}

using ProfileDialogTest = lad::testing::ApplicationTest;

TEST_F(ProfileDialogTest, TheGreetingsSettingsButtonOpensTheFirstPregnancy) {
  launchApp();
  Session fresh(*app);
  ASSERT_EQ(fresh.view()["kind"].text(), "welcome");
  ASSERT_TRUE(tap(fresh, "welcome:3").ok());
  EXPECT_EQ(fresh.view()["caption"].text(), "Настройки");
  ASSERT_TRUE(tap(fresh, "editor:cancel").ok());
  EXPECT_EQ(fresh.view()["kind"].text(), "welcome") << "the greeting stays under the settings";
}

std::string sourceOf(const ProfileDialog& d, std::string_view field) {
  return (*d.row(field))["source"].text();
}

TEST_F(ProfileDialogTest, ANewPregnancyIsMadeThroughTheDialog) {
  launchApp();
  ProfileDialog d(*app, std::nullopt);
  EXPECT_EQ(d.code(), ProfileDialog::kNewProfile);
  EXPECT_EQ(d.row("remove"), nullptr) << "no removal button for a profile not yet made";
  EXPECT_EQ(sourceOf(d, "sdat1"), "23.11.2026");
  EXPECT_EQ(sourceOf(d, "sbirthdate"), "30.08.2027");

  // The due date and the last period follow each other.
  EXPECT_FALSE(d.change("sdat1", "01.06.2026"));
  EXPECT_EQ(sourceOf(d, "sbirthdate"), "08.03.2027");
  EXPECT_FALSE(d.change("sbirthdate", "01.07.2027"));
  EXPECT_EQ(sourceOf(d, "sdat1"), "24.09.2026");
  EXPECT_EQ(sourceOf(d, "sdat2"), "08.10.2026");

  auto refused = d.change("sdat2", "24.09.2026");
  ASSERT_TRUE(refused) << "a conception on the first day itself is refused";
  EXPECT_EQ(refused->caption, "Корректировка даты зачатия");
  EXPECT_EQ(sourceOf(d, "sdat2"), "08.10.2026");

  d.change("rost", "165");
  d.change("ves", "70");
  EXPECT_EQ((*d.row("bodytype"))["caption"].text(),
            "Индекс тела равен 25.7.\nУ вас среднее телосложение.");
  d.change("ves", "abc");
  EXPECT_EQ((*d.row("bodytype"))["caption"].text(), "Индекс тела не определен");
  d.change("ves", "58");
  d.change("name", "Вера");

  const Map saved = loadSetupData(app->store(), d.finish());
  EXPECT_EQ(saved["sdat1"].text(), "2026-09-24");
  EXPECT_EQ(saved["name"].text(), "Вера");
  EXPECT_EQ(loadProfils(app->store()).size(), 2u);
}

}  // namespace
}  // namespace lad::shell
