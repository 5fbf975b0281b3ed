#include "health/breast_timer.h"

#include "tests/health/health_fixture.h"

namespace lad::health {
namespace {

using namespace std::chrono_literals;

class BreastTimerTest : public lad::testing::HealthTest {
 protected:
  Date midnightAfter(const std::string& day) { return after(day, 1); }
};

TEST_F(BreastTimerTest, RunsOnFromTheMinutesFedAndShowsTheHourWithoutALeadingZero) {
  BreastTimer timer;
  EXPECT_FALSE(timer.stop(at("2026-05-04 10:00")));
  const Date start = at("2026-05-04 10:00") + 250ms;
  timer.start(BreastSide::Right, 5, start, midnightAfter("2026-05-04"));
  EXPECT_EQ(timer.clockText(start), "0:05:00");
  EXPECT_EQ(timer.clockText(start + 57min + 3s), "1:02:03");
  EXPECT_TRUE(timer.onTimer(start + 1s));
  EXPECT_EQ(timer.stop(start + 4min + 59s), 9);
  EXPECT_FALSE(timer.onTimer(start + 5min));
}

TEST_F(BreastTimerTest, AFeedingLeftRunningOverMidnightStopsOnItsOwnDay) {
  BreastTimer timer;
  const Date start = at("2026-10-24 23:50");
  timer.start(BreastSide::Left, 0, start, midnightAfter("2026-10-24"));
  const Date later = at("2026-10-25 00:30");
  EXPECT_FALSE(timer.onTimer(later)) << "no more ticks after the day's end";
  EXPECT_EQ(timer.clockText(later), "0:10:00");
  EXPECT_EQ(timer.stop(later), 10);
}

}  // namespace
}  // namespace lad::health
