#include "core/clock.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace lad {
namespace {

TEST(Clock, OffsetFollowsDaylightSavingOfTheZone) {
  const Date winter = *dateFromIso("2026-01-15T12:00:00Z");
  const Date summer = *dateFromIso("2026-07-15T12:00:00Z");
  // Europe/Berlin leaves summer time on 2026-10-25 at 01:00 UTC.
  const Date beforeSwitch = *dateFromIso("2026-10-25T00:59:59Z");
  const Date afterSwitch = *dateFromIso("2026-10-25T01:00:00Z");
  ManualClock clock(winter, "Europe/Berlin");
  EXPECT_EQ(clock.utcOffsetSeconds(winter), 3600);
  EXPECT_EQ(clock.utcOffsetSeconds(summer), 7200);
  EXPECT_EQ(clock.utcOffsetSeconds(beforeSwitch), 7200);
  EXPECT_EQ(clock.utcOffsetSeconds(afterSwitch), 3600);
  EXPECT_EQ(Clock("UTC").utcOffsetSeconds(summer), 0);
}

TEST(Clock, UnknownZoneIsRefused) {
  EXPECT_THROW(Clock("Mars/Olympus"), std::invalid_argument);
  EXPECT_FALSE(Clock::hostZone().empty());
  EXPECT_NO_THROW(Clock(Clock::hostZone()));
}

}  // namespace
}  // namespace lad
