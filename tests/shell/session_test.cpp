#include "shell/session.h"

#include <gtest/gtest.h>

#include "core/menu_table.h"
#include "shell/page_ring.h"
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

  Session tablet(*app);  // held in landscape: the sides are swapped
  ASSERT_TRUE(tablet.handle(event(R"({"type":"viewport","width":1024,"height":768.5})")).ok());
  EXPECT_TRUE(tablet.metrics().isTablet);
  EXPECT_DOUBLE_EQ(tablet.metrics().scaleX, 768.5 / 320);
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

TEST_F(SessionTest, PagesOpenFromAnOpenCardAndLeaveByDragOrTilt) {
  const std::string card = "card:00000000-0000-0000-0001-000000000001";
  auto s = greetedSession();
  ASSERT_TRUE(act(*s, {card, "menu:3"}));
  EXPECT_EQ(s->frontPage(), 3);
  Value view = s->view();
  ASSERT_EQ(view["kind"].text(), "ring");
  EXPECT_EQ(view["next"]["title"].text(), "Развитие ребенка");  // the next page waits behind

  // Drags and tilts reach the ring (whose thresholds and rest rules the ring tests below walk): a
  // drag to the left turns it, one to the right brings the menu back; tilting is off until
  // switch 53 turns it on.
  EXPECT_FALSE(s->handle(event(R"({"type":"drag","offset":"x","width":320})")).ok());
  ASSERT_TRUE(s->handle(event(R"({"type":"drag","offset":-90,"width":320})")).ok());
  EXPECT_EQ(s->frontPage(), 4);
  ASSERT_TRUE(s->handle(event(R"({"type":"drag","offset":90,"width":320})")).ok());
  EXPECT_EQ(s->frontPage(), std::nullopt);
  EXPECT_FALSE(s->handle(event(R"({"type":"drag","offset":90,"width":320})")).ok());
  ASSERT_TRUE(s->handle(event(R"({"type":"tilt","x":-0.8})")).ok());
  EXPECT_EQ(s->frontPage(), std::nullopt);
  ASSERT_TRUE(tap(*s, "menu:53").ok());
  ASSERT_TRUE(s->handle(event(R"({"type":"tilt","x":-0.8})")).ok());
  EXPECT_EQ(s->frontPage(), 5) << "the ring goes on after the last page";
}

TEST_F(SessionTest, AShortcutWithoutAPregnancyTellsSoAndAMessageTakesTheTapsUntilClosed) {
  {
    StoreBracket bracket = app->store().connectToBase();
    ASSERT_TRUE(bracket.db()->execute("update preg set deleted=1"));
  }
  auto s = greetedSession();
  shortcut(*s, "NEWNOTE");
  const Value message = s->view()["message"];
  EXPECT_EQ(message["text"].text(), "Активная беременность не найдена");
  EXPECT_FALSE(tap(*s, "menu:51").ok());
  ASSERT_TRUE(tap(*s, "message:ok").ok());
  EXPECT_FALSE(s->view().asMap()->contains("message"));

  // A shortcut that arrives while a message is up is dropped at the activation.
  shortcut(*s, "NEWNOTE");
  shortcut(*s, "NEWNOTE");
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

List pregnancyMenu() {
  return buildMenuTable(1, 1, "1.0", [](std::string_view s) { return std::string(s); });
}

TEST(PageRingTest, TheRingHoldsTheBuiltPagesInMenuOrderAndWraps) {
  const List menu = pregnancyMenu();
  // Commands (21 and up) never enter the ring, even when named as built.
  EXPECT_EQ(PageRing::pagesOf(menu, {6, 3, 22, 31}), (std::vector<int>{3, 6}));

  PageRing ring({3, 6, 8});
  EXPECT_FALSE(ring.open(4));
  EXPECT_EQ(ring.front(), std::nullopt);
  ASSERT_TRUE(ring.open(8));
  EXPECT_EQ(ring.front(), 8);
  EXPECT_EQ(ring.back(), 3);
  ring.gotoNextPage();
  EXPECT_EQ(ring.front(), 3);
  ring.gotoMenu();
  EXPECT_EQ(ring.front(), std::nullopt);
  ring.gotoNextPage();
  EXPECT_EQ(ring.front(), 6);

  PageRing empty({});
  empty.gotoNextPage();
  EXPECT_EQ(empty.front(), std::nullopt);
  EXPECT_EQ(empty.back(), std::nullopt);
}

TEST(PageRingTest, ADragDecidesByAQuarterOfTheWidth) {
  EXPECT_EQ(dragEnded(81, 320), DragOutcome::kMenu);
  EXPECT_EQ(dragEnded(80, 320), DragOutcome::kBack);
  EXPECT_EQ(dragEnded(-80, 320), DragOutcome::kBack);
  EXPECT_EQ(dragEnded(-81, 320), DragOutcome::kNextPage);
  EXPECT_EQ(dragEnded(0, 320), DragOutcome::kBack);
  EXPECT_EQ(dragEnded(500, 0), DragOutcome::kBack);
}

TEST(PageRingTest, EachTiltMakesOneMoveAndNeedsRestBeforeTheNext) {
  using Move = TiltNavigator::Move;
  TiltNavigator tilt;
  EXPECT_EQ(tilt.sample(0.4, false, true), Move::kNone);  // between rest and tilt
  EXPECT_EQ(tilt.state(), 0);
  EXPECT_EQ(tilt.sample(0.6, false, true), Move::kMenu);
  EXPECT_EQ(tilt.sample(-0.7, false, true), Move::kNone);  // no rest in between
  EXPECT_EQ(tilt.state(), 2);
  EXPECT_EQ(tilt.sample(0.29, false, true), Move::kNone);
  EXPECT_EQ(tilt.state(), 0);
  EXPECT_EQ(tilt.sample(-0.6, false, true), Move::kNextPage);

  // Without an open profile the tilt stays counted until rest.
  TiltNavigator closed;
  EXPECT_EQ(closed.sample(-0.6, false, false), Move::kNone);
  EXPECT_EQ(closed.state(), -1);
  EXPECT_EQ(closed.sample(-0.6, false, true), Move::kNextPage);

  // Upside down the directions swap.
  TiltNavigator flipped;
  EXPECT_EQ(flipped.sample(0.6, true, true), Move::kNextPage);
  EXPECT_EQ(flipped.sample(-0.3, true, true), Move::kNone);
  EXPECT_EQ(flipped.state(), 2);
}

}  // namespace
}  // namespace lad::shell
