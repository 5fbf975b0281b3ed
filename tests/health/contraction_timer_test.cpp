#include "health/contraction_timer.h"

#include <gtest/gtest.h>

namespace lad::health {
namespace {

using namespace std::chrono_literals;
using Phase = ContractionTimer::Phase;

TEST(ContractionTimer, RunsStopsAndFadesOut) {
  const Date t0 = *dateFromIso("2026-03-30T08:00:00.700Z");
  ContractionTimer timer;
  EXPECT_FALSE(timer.stop(t0));
  EXPECT_FALSE(timer.onTimer());

  timer.start(t0);
  EXPECT_TRUE(timer.running());
  EXPECT_EQ(timer.startDate(), *dateFromIso("2026-03-30T08:00:00Z"));
  EXPECT_TRUE(timer.onTimer());
  EXPECT_EQ(timer.runningText(t0 + 74s), "01:14");

  // Times are kept in whole seconds: the length is the difference of the stored times.
  const auto c = timer.stop(t0 + 75s + 500ms);
  ASSERT_TRUE(c);
  EXPECT_EQ(c->end, *dateFromIso("2026-03-30T08:01:16Z"));
  EXPECT_EQ(c->len, 76);
  EXPECT_FALSE(timer.stop(t0 + 80s));

  // Two more ticks let the running view fade, then no timer is armed.
  EXPECT_EQ(timer.phase(), Phase::StopRequested);
  EXPECT_TRUE(timer.visible());
  EXPECT_TRUE(timer.onTimer());
  EXPECT_EQ(timer.phase(), Phase::Closing);
  EXPECT_FALSE(timer.onTimer());
  EXPECT_FALSE(timer.visible());

  // A clock that went back never gives a negative length.
  timer.start(t0);
  EXPECT_EQ(timer.stop(t0 - 10s)->len, 0);
}

}  // namespace
}  // namespace lad::health
