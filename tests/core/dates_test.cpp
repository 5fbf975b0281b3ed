#include "core/dates.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <vector>

#include "core/clock.h"

namespace lad {
namespace {

constexpr const char* kMoment = "yyyy-MM-dd HH:mm:ss";

// Europe/Berlin moves to summer time on 2026-03-29 and back on 2026-10-25.
const DateCodec& berlin() {
  static const DateCodec codec("Europe/Berlin", 1);
  return codec;
}

Date at(const char* local) {
  return berlin().dateFromString(local).value();
}

std::string local(Date d) {
  return berlin().dateToString(d, kMoment);
}

TEST(DateCodec, CountsCalendarDaysAndMonthsAcrossDaylightSaving) {
  struct Case {
    const char* from;
    const char* to;
    int days;
    int months;
  };
  const Case cases[] = {
      {"2026-03-29 00:00:00", "2026-03-30 00:00:00", 1, 0},  // a day of 23 hours
      {"2026-10-25 00:00:00", "2026-10-26 00:00:00", 1, 0},  // a day of 25 hours
      {"2026-03-28 12:00:00", "2026-03-30 00:30:00", 2, 0},
      {"2026-10-25 23:30:00", "2026-10-25 00:10:00", 0, 0},  // one day
      {"2026-05-10 09:00:00", "2026-05-09 23:59:00", -1, 0},
      {"2026-01-01 00:00:00", "2027-01-01 00:00:00", 365, 12},
      {"2026-01-15 10:00:00", "2026-03-14 09:00:00", 58, 1},
      {"2026-01-15 10:00:00", "2026-03-15 08:00:00", 59, 2},
      {"2026-03-15 00:00:00", "2026-01-15 23:00:00", -59, -2},
      {"2026-01-31 00:00:00", "2026-02-28 00:00:00", 28, 1},  // a month step stops at the end
  };
  for (const Case& c : cases) {
    EXPECT_EQ(berlin().getDays(at(c.from), at(c.to)), c.days) << c.from << " " << c.to;
    EXPECT_EQ(berlin().getMonths(at(c.from), at(c.to)), c.months) << c.from << " " << c.to;
  }
}

TEST(DateCodec, StepsByCalendarUnitsKeepingTheTimeOfDay) {
  const Date midnight = berlin().noTime(at("2026-03-28 15:00:00"));
  EXPECT_EQ(local(berlin().addDays(midnight, 1)), "2026-03-29 00:00:00");
  EXPECT_EQ(local(berlin().addDays(midnight, 2)), "2026-03-30 00:00:00");
  EXPECT_EQ(local(berlin().addDays(at("2026-10-26 08:30:00"), -2)), "2026-10-24 08:30:00");
  EXPECT_EQ(local(berlin().addMonths(at("2026-01-31 10:00:00"), 1)), "2026-02-28 10:00:00");
  EXPECT_EQ(local(berlin().addMonths(at("2026-11-30 10:00:00"), 14)), "2028-01-30 10:00:00");
  EXPECT_EQ(local(berlin().addYears(at("2024-02-29 07:00:00"), 1)), "2025-02-28 07:00:00");
  EXPECT_EQ(local(berlin().addYears(at("2024-02-29 07:00:00"), -4)), "2020-02-29 07:00:00");
}

TEST(DateCodec, DayStartsAtLocalMidnight) {
  EXPECT_EQ(dateToIso(berlin().noTime(at("2026-03-29 15:00:00"))), "2026-03-28T23:00:00.000Z");
  EXPECT_EQ(dateToIso(berlin().noTime(at("2026-10-25 23:59:59"))), "2026-10-24T22:00:00.000Z");
  EXPECT_EQ(berlin().encodeDate(29, 3, 2026), at("2026-03-29 00:00:00"));
  EXPECT_EQ(local(berlin().encodeDate(32, 1, 2026)), "2026-02-01 00:00:00");
  EXPECT_EQ(local(berlin().encodeDate(0, 3, 2026)), "2026-02-28 00:00:00");
  // The Gregorian rules hold for every year: 1500 is no leap year.
  EXPECT_EQ(berlin().getDays(berlin().encodeDate(1, 1, 1500), berlin().encodeDate(1, 1, 1600)),
            36524);
  EXPECT_EQ(berlin().dateToString(berlin().encodeDate(1, 3, 1500), "d MMMM y"), "1 марта 1500");
}

TEST(DateCodec, DecodesCalendarParts) {
  struct Case {
    const char* moment;
    int year, month, day, weekday, week;
  };
  const Case cases[] = {
      {"2026-01-01 10:00:00", 2026, 1, 1, 5, 1},    // a Thursday opens week 1
      {"2027-01-01 00:30:00", 2027, 1, 1, 6, 53},   // a Friday still in the last week
      {"2026-03-29 23:30:00", 2026, 3, 29, 1, 13},  // Sunday ends the week
  };
  for (const Case& c : cases) {
    const DateParts p = berlin().decodeDate(at(c.moment));
    EXPECT_EQ(std::vector({p.year, p.month, p.day, p.weekday, p.weekOfYear}),
              std::vector({c.year, c.month, c.day, c.weekday, c.week}))
        << c.moment;
  }
  const std::pair<const char*, int> monthEnds[] = {
      {"2024-02-10 00:00:00", 29}, {"2026-02-28 23:59:59", 28}, {"2026-04-30 12:00:00", 30}};
  for (const auto& [moment, last] : monthEnds)
    EXPECT_EQ(berlin().lastDateOfMonth(at(moment)), last) << moment;
}

TEST(DateCodec, AnUnknownLanguageWritesRussianAndUtcIgnoresTheZone) {
  const Date may = at("2026-05-28 12:00:00");
  EXPECT_EQ(DateCodec("Europe/Berlin", 9).dateToString(may, "dd MMMM yyyy"), "28 мая 2026");
  EXPECT_EQ(DateCodec::dateToStringUTC(at("2026-07-01 01:30:00"), kMoment), "2026-06-30 23:30:00");
}

TEST(DateCodec, ReadsTheThreeColumnFormsByLength) {
  EXPECT_EQ(dateToIso(*berlin().dateFromString("2026-03-05")), "2026-03-04T23:00:00.000Z");
  EXPECT_EQ(dateToIso(*berlin().dateFromString("2026-03-05 14:30")), "2026-03-05T13:30:00.000Z");
  EXPECT_EQ(dateToIso(*berlin().dateFromString("2026-07-05 14:30:15")), "2026-07-05T12:30:15.000Z");
  // An unknown zone is refused by the codec and the clock alike; the host's own is known.
  EXPECT_THROW(DateCodec("Mars/Olympus", 1), std::invalid_argument);
  EXPECT_THROW(Clock("Mars/Olympus"), std::invalid_argument);
  EXPECT_NO_THROW(Clock(Clock::hostZone()));
  for (const char* bad : {"2026-3-5", "2026-03-5", "2026-3-05 14:30", "2026-03-05 14:30:1", "",
                          "05.03.2026", "2026-03-05T14:30"})
    EXPECT_EQ(berlin().dateFromString(bad), std::nullopt) << bad;
}

}  // namespace
}  // namespace lad
