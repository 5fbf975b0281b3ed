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

  EventResult send(const std::string& json) { return ApplicationTest::send(*session, json); }
  void tap(const std::string& target) {
    ASSERT_TRUE(ApplicationTest::tap(*session, target).ok()) << target;
  }
  EventResult change(const std::string& field, const Value& value) {
    return ApplicationTest::change(*session, "field:" + field, value);
  }
  // The source of a field's row in the editor on screen.
  std::string shown(const std::string& field) {
    const Value row = rowWith(*session, "field", field);
    EXPECT_FALSE(row.isNull()) << "no row " << field;
    return row["source"].text();
  }

  std::unique_ptr<Session> session;
};

// A date row opens the date wheel on its own date; the date chosen there goes through the
// same rules as a typed one.
TEST_F(ProfileEditorTest, ADateIsChosenOnTheDateWheel) {
  tap("menu:31");
  ASSERT_TRUE(change("sdat1", "01.05.2026").ok());
  tap("field:sdat1");
  const Value picker = session->view()["popup"];
  ASSERT_EQ(picker["kind"].text(), "picker");
  List positions;
  for (const Value& wheel : *picker["wheels"].asList()) positions.push_back(wheel["selected"]);
  ASSERT_EQ(positions.size(), 3u);
  EXPECT_EQ(positions[0].intValue(), 0) << "the wheel opens on the first of May";
  EXPECT_EQ(positions[1].intValue(), 4);
  positions[1] = Value(5);
  ASSERT_TRUE(pick(*session, std::move(positions)).ok());
  EXPECT_EQ(shown("sdat1"), "01.06.2026");
  EXPECT_EQ(shown("sbirthdate"), "08.03.2027") << "the due date follows the last period";
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
  EXPECT_FALSE(send(R"({"type":"tap","target":"menu:22"})").ok()) << "no profile is open";
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
  EXPECT_TRUE(photo["preview"].text().starts_with("data:image/jpeg;base64,"));
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
  Value view = fresh.view();
  ASSERT_EQ(view["kind"].text(), "welcome");
  ASSERT_TRUE(fresh.handle(*Value::fromJson(R"({"type":"tap","target":"welcome:3"})")).ok());
  view = fresh.view();
  EXPECT_EQ(view["kind"].text(), "editor");
  EXPECT_EQ(view["caption"].text(), "Настройки");
  ASSERT_TRUE(fresh.handle(*Value::fromJson(R"({"type":"tap","target":"editor:cancel"})")).ok());
  EXPECT_EQ(fresh.view()["kind"].text(), "welcome") << "the greeting stays under the settings";
}

std::string sourceOf(const ProfileDialog& d, std::string_view field) {
  return (*d.row(field))["source"].text();
}

TEST_F(ProfileDialogTest, ANewPregnancyIsMadeThroughTheDialog) {
  launchApp();
  ProfileDialog d(*app, std::nullopt);
  EXPECT_EQ(d.code(), ProfileDialog::kNewProfile);
  EXPECT_EQ(d.rows().size(), 16u) << "no removal button for a profile not yet made";
  EXPECT_EQ(sourceOf(d, "sdat1"), "23.11.2026");
  EXPECT_EQ(sourceOf(d, "sdat2"), "07.12.2026");
  EXPECT_EQ(sourceOf(d, "sbirthdate"), "30.08.2027");

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
  d.change("sex", 2);
  d.change("name", "Вера");

  const Map saved = loadSetupData(app->store(), d.finish());
  EXPECT_EQ(saved["sdat1"].text(), "2026-09-24");
  EXPECT_EQ(saved["name"].text(), "Вера");
  EXPECT_EQ(saved["sex"].intValue(), 2);
  EXPECT_EQ(loadProfils(app->store()).size(), 2u);
}

}  // namespace
}  // namespace lad::shell
