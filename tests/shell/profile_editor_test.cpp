#include "shell/profile_editor.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "shell/session.h"
#include "store/portrait.h"
#include "store/profiles.h"
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
// same rules as a typed one, and closing the wheel changes nothing.
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
  tap("popup:0");
  EXPECT_EQ(shown("sdat1"), "01.05.2026");
  tap("field:sdat1");
  Map confirm;
  confirm.set("type", "tap");
  confirm.set("target", "popup:1");
  confirm.set("value", Value(std::move(positions)));
  ASSERT_TRUE(session->handle(Value(std::move(confirm))).ok());
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
  Value view = session->view();
  EXPECT_EQ(view["kind"].text(), "editor");
  EXPECT_EQ(view["message"]["caption"].text(), "Ошибка");
  tap("message:ok");
  tap("editor:cancel");
  EXPECT_EQ(session->view()["kind"].text(), "page");
  EXPECT_EQ(loadProfils(app->store()).size(), 1u) << "cancel saves nothing";
}

TEST_F(ProfileEditorTest, APortraitIsCheckedWhenChosenAndWrittenWhenSaved) {
  EXPECT_FALSE(send(R"({"type":"tap","target":"menu:22"})").ok()) << "no profile is open";
  tap("card:" + kFirstProfile);
  tap("menu:22");
  EXPECT_EQ(session->view()["caption"].text(), "Настройки");
  for (const char* notAPicture : {"data:image/png;base64,AAAA", "http://elsewhere/x.jpg"}) {
    ASSERT_TRUE(change("photo", notAPicture).ok());
    const Value refused = session->view();
    EXPECT_EQ(refused["message"]["text"].text(), "Не удалось прочитать фотографию") << notAPicture;
    tap("message:ok");
  }
  ASSERT_TRUE(change("photo", jpegDataUrl(8, 4)).ok());
  const Value editor = session->view();
  for (const Value& row : *editor["rows"].asList())
    if (row["field"].text() == "photo") {
      EXPECT_TRUE(row["preview"].text().starts_with("data:image/jpeg;base64,"));
      EXPECT_TRUE(row["source"].isNull()) << "the picture's bytes stay on the server";
    }
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

using GreetingTest = lad::testing::ApplicationTest;

TEST_F(GreetingTest, TheGreetingsSettingsButtonOpensTheFirstPregnancy) {
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

}  // namespace
}  // namespace lad::shell
