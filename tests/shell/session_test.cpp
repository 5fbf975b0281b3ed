#include "shell/session.h"

#include <gtest/gtest.h>

#include "store/store.h"
#include "tests/shell/application_fixture.h"

namespace lad::shell {
namespace {

class SessionTest : public lad::testing::ApplicationTest {
 protected:
  SessionTest() { launchApp(); }

  static Value event(const std::string& json) { return *Value::fromJson(json); }
};

TEST_F(SessionTest, ViewportSetsScaleInPortraitAndTellsTablets) {
  Session phone(*app);
  ASSERT_TRUE(phone.handle(event(R"({"type":"viewport","width":390,"height":844})")).ok());
  EXPECT_FALSE(phone.metrics().isTablet);
  EXPECT_DOUBLE_EQ(phone.metrics().scaleX, 390.0 / 320);
  EXPECT_DOUBLE_EQ(phone.metrics().scaleY, 844.0 / 480);

  Session tablet(*app);  // held in landscape: the sides are swapped
  ASSERT_TRUE(tablet.handle(event(R"({"type":"viewport","width":1024,"height":768.5})")).ok());
  EXPECT_TRUE(tablet.metrics().isTablet);
  EXPECT_DOUBLE_EQ(tablet.metrics().scaleX, 768.5 / 320);
  EXPECT_DOUBLE_EQ(tablet.metrics().scaleY, 1024.0 / 480);
  EXPECT_FALSE(phone.metrics().isTablet);  // sessions keep their own sizes
}

TEST_F(SessionTest, TheFirstScreenOfTheLaunchGreetsAndTakesTapsUntilClosed) {
  Session first(*app), second(*app);
  EXPECT_EQ(first.view()["kind"].text(), "welcome");
  EXPECT_EQ(second.view()["kind"].text(), "page") << "the greeting comes once";
  EXPECT_FALSE(tap(first, "menu:51").ok())
      << "a tap meant for the menu under the greeting is stale";
  EXPECT_FALSE(app->context().settings().boolForKey("emptyNote"));
  ASSERT_TRUE(tap(first, "welcome:close").ok());
  EXPECT_EQ(first.view()["kind"].text(), "page");
}

TEST_F(SessionTest, AShortcutRunsAtTheNextActivationOnTheActivePregnancy) {
  auto s = greetedSession();
  ASSERT_TRUE(s->handle(event(R"({"type":"shortcut","name":"SCHVATKI"})")).ok());
  EXPECT_EQ(s->activeId(), "");
  ASSERT_TRUE(s->handle(event(R"({"type":"visible"})")).ok());
  EXPECT_EQ(s->activeId(), "00000000-0000-0000-0001-000000000001");
  EXPECT_FALSE(s->view().asMap()->contains("message"));
}

TEST_F(SessionTest, PagesOpenFromAnOpenCardAndLeaveByDragOrTilt) {
  const std::string card = "card:00000000-0000-0000-0001-000000000001";
  auto s = greetedSession();
  EXPECT_FALSE(tap(*s, "menu:3").ok());  // no open card
  ASSERT_TRUE(s->handle(event(R"({"type":"tap","target":")" + card + R"("})")).ok());
  ASSERT_TRUE(tap(*s, "menu:3").ok());
  EXPECT_EQ(s->frontPage(), 3);
  Value view = s->view();
  ASSERT_EQ(view["kind"].text(), "ring");
  EXPECT_EQ(view["page"]["title"].text(), "Графики ребенка");
  EXPECT_EQ((*view["page"]["children"].asList())[0]["text"].text(), "1 неделя");
  EXPECT_EQ(view["menu"]["kind"].text(), "page");
  EXPECT_EQ(view["next"]["title"].text(), "Развитие ребенка");  // the next page waits behind

  // Drags and tilts reach the ring (whose thresholds and rest rules page_ring_test walks): a
  // drag to the left turns it, one to the right brings the menu back; tilting is off until
  // switch 53 turns it on.
  EXPECT_FALSE(s->handle(event(R"({"type":"drag","offset":"x","width":320})")).ok());
  ASSERT_TRUE(s->handle(event(R"({"type":"drag","offset":-90,"width":320})")).ok());
  EXPECT_EQ(s->frontPage(), 4);
  EXPECT_EQ(s->view()["next"]["title"].text(), "Женщина");
  ASSERT_TRUE(s->handle(event(R"({"type":"drag","offset":90,"width":320})")).ok());
  EXPECT_EQ(s->frontPage(), std::nullopt);
  EXPECT_EQ(s->view()["kind"].text(), "page");
  EXPECT_FALSE(s->handle(event(R"({"type":"drag","offset":90,"width":320})")).ok());
  ASSERT_TRUE(s->handle(event(R"({"type":"tilt","x":-0.8})")).ok());
  EXPECT_EQ(s->frontPage(), std::nullopt);
  ASSERT_TRUE(tap(*s, "menu:53").ok());
  ASSERT_TRUE(s->handle(event(R"({"type":"tilt","x":-0.8})")).ok());
  EXPECT_EQ(s->frontPage(), 5) << "the ring goes on after the last page";
  ASSERT_TRUE(tap(*s, "ring:menu").ok());
  EXPECT_EQ(s->frontPage(), std::nullopt);
}

TEST_F(SessionTest, AShortcutWithoutAPregnancyTellsSoAndAMessageTakesTheTapsUntilClosed) {
  {
    StoreBracket bracket = app->store().connectToBase();
    ASSERT_TRUE(bracket.db()->execute("update preg set deleted=1"));
  }
  auto s = greetedSession();
  ASSERT_TRUE(s->handle(event(R"({"type":"shortcut","name":"NEWNOTE"})")).ok());
  ASSERT_TRUE(s->handle(event(R"({"type":"visible"})")).ok());
  const Value message = s->view()["message"];
  EXPECT_EQ(message["caption"].text(), "Активная беременность");
  EXPECT_EQ(message["text"].text(), "Активная беременность не найдена");
  EXPECT_FALSE(tap(*s, "menu:51").ok());
  ASSERT_TRUE(tap(*s, "message:ok").ok());
  EXPECT_FALSE(s->view().asMap()->contains("message"));

  // A shortcut that arrives while a message is up is dropped at the activation.
  s->handle(event(R"({"type":"shortcut","name":"NEWNOTE"})"));
  s->handle(event(R"({"type":"visible"})"));
  s->handle(event(R"({"type":"shortcut","name":"NEWNOTE"})"));
  ASSERT_TRUE(s->handle(event(R"({"type":"visible"})")).ok());
  ASSERT_TRUE(tap(*s, "message:ok").ok());
  ASSERT_TRUE(s->handle(event(R"({"type":"visible"})")).ok());
  EXPECT_FALSE(s->view().asMap()->contains("message")) << "the dropped shortcut did not run";
}

TEST_F(SessionTest, HidingAndShowingTheBrowserDrivesTheLock) {
  auto s = greetedSession();
  app->context().settings().set("pass", true);
  ASSERT_TRUE(s->handle(event(R"({"type":"hidden"})")).ok());
  clock->advance(std::chrono::seconds(3));
  ASSERT_TRUE(s->handle(event(R"({"type":"visible"})")).ok());
  EXPECT_FALSE(s->lockDue());
  ASSERT_TRUE(s->handle(event(R"({"type":"hidden"})")).ok());
  clock->advance(std::chrono::seconds(7));
  ASSERT_TRUE(s->handle(event(R"({"type":"visible"})")).ok());
  EXPECT_TRUE(s->lockDue());
}

}  // namespace
}  // namespace lad::shell
