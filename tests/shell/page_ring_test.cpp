#include "shell/page_ring.h"

#include <gtest/gtest.h>

#include "core/menu_table.h"

namespace lad::shell {
namespace {

List pregnancyMenu() {
  return buildMenuTable(1, 1, "1.0", [](std::string_view s) { return std::string(s); });
}

TEST(PageRingTest, TheRingHoldsTheBuiltPagesInMenuOrderAndWraps) {
  const List menu = pregnancyMenu();
  EXPECT_EQ(PageRing::pagesOf(menu, {}), std::vector<int>{});
  // Commands (21 and up) never enter the ring, even when named as built.
  EXPECT_EQ(PageRing::pagesOf(menu, {6, 3, 22, 31}), (std::vector<int>{3, 6}));

  PageRing ring({3, 6, 8});
  EXPECT_EQ(ring.front(), std::nullopt);
  EXPECT_FALSE(ring.open(4));
  EXPECT_EQ(ring.front(), std::nullopt);
  ASSERT_TRUE(ring.open(8));
  EXPECT_EQ(ring.front(), 8);
  EXPECT_EQ(ring.back(), 3);
  ring.gotoNextPage();
  EXPECT_EQ(ring.front(), 3);
  EXPECT_EQ(ring.back(), 6);
  ring.gotoMenu();
  EXPECT_EQ(ring.front(), std::nullopt);
  ring.gotoNextPage();
  EXPECT_EQ(ring.front(), 6);

  PageRing single({6});
  ASSERT_TRUE(single.open(6));
  EXPECT_EQ(single.back(), 6);
  single.gotoNextPage();
  EXPECT_EQ(single.front(), 6);

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
