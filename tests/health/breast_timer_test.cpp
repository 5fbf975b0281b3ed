#include "health/breast_timer.h"

#include "tests/health/health_fixture.h"

namespace lad::health {
namespace {

class BreastTimerTest : public lad::testing::HealthTest {};

// Running on from the minutes typed and the stop's minutes are the feeding screen's test.
TEST_F(BreastTimerTest, AFeedingLeftRunningOverMidnightStopsOnItsOwnDay) {
  BreastTimer timer;
  const Date start = at("2026-10-24 23:50");
  timer.start(BreastSide::Left, 0, start, after("2026-10-24", 1));
  const Date later = at("2026-10-25 00:30");
  EXPECT_FALSE(timer.onTimer(later)) << "no more ticks after the day's end";
  EXPECT_EQ(timer.clockText(later), "0:10:00");
  EXPECT_EQ(timer.stop(later), 10);
}

}  // namespace
}  // namespace lad::health
