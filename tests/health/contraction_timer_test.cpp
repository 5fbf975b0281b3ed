#include "health/contraction_timer.h"

#include <gtest/gtest.h>

namespace lad::health {
namespace {

using namespace std::chrono_literals;

// The ticks and the fade after a stop are the contraction screen's test.
TEST(ContractionTimer, KeepsWholeSecondsAndNeverANegativeLength) {
  const Date t0 = *dateFromIso("2026-03-30T08:00:00.700Z");
  ContractionTimer timer;
  EXPECT_FALSE(timer.stop(t0));

  timer.start(t0);
  EXPECT_EQ(timer.startDate(), *dateFromIso("2026-03-30T08:00:00Z"));
  // The length is the difference of the stored times.
  const auto c = timer.stop(t0 + 75s + 500ms);
  ASSERT_TRUE(c);
  EXPECT_EQ(c->end, *dateFromIso("2026-03-30T08:01:16Z"));
  EXPECT_EQ(c->len, 76);
  EXPECT_FALSE(timer.stop(t0 + 80s));

  // A clock that went back.
  timer.start(t0);
  EXPECT_EQ(timer.stop(t0 - 10s)->len, 0);
}

}  // namespace
}  // namespace lad::health
