#include "health/pregnancy_calendar.h"

#include "tests/health/health_fixture.h"

namespace lad::health {
namespace {

using testing::HealthTest;

class PregnancyCalendar : public HealthTest {};

TEST_F(PregnancyCalendar, CountsDaysAndWeeksByCalendarDayAcrossDaylightSaving) {
  struct Case {
    const char* dat1;
    const char* now;
    int day, week;
  };
  const Case cases[] = {
      {"2026-03-20", "2026-03-20 00:30", 1, 1},  // the first day is day 1 of week 1
      {"2026-03-20", "2026-03-26 23:30", 7, 1},
      {"2026-03-20", "2026-03-27 00:30", 8, 2},
      {"2026-03-20", "2026-03-30 00:30", 11, 2},  // past the 23-hour day
      {"2026-03-20", "2026-03-29 23:30", 10, 2},
      {"2026-03-20", "2026-03-19 12:00", 0, 1},  // the day before dips to 0
      {"2026-03-20", "2026-03-18 23:30", 1, 1},
      {"2026-03-20", "2026-12-25 00:30", 281, 41},
      {"2026-10-20", "2026-10-26 23:30", 7, 1},  // past the 25-hour day
      {"2026-10-20", "2026-10-27 00:30", 8, 2},
      {"2026-10-20 23:45", "2026-10-26 00:10", 7, 1},  // a time of day on dat1 counts for nothing
  };
  for (const Case& c : cases) {
    today(at(c.now));
    Map setup;
    setup.set("dat1", at(c.dat1));
    EXPECT_EQ(getCurDay(context, setup), c.day) << c.dat1 << " " << c.now;
    EXPECT_EQ(getCurWeek(context, setup), c.week) << c.dat1 << " " << c.now;
  }
}

TEST_F(PregnancyCalendar, CompletedPregnancyStandsStillOnTheDayOfBirth) {
  Map setup = pregnancy("2026-03-20", "2026-04-03", "2026-12-25");
  setup.set("birthdate2", at("2026-11-30 18:00"));  // n = 255
  for (const char* now : {"2026-12-01 08:00", "2028-06-01 08:00"}) {
    today(at(now));
    EXPECT_EQ(getCurDay(context, setup), 256);
    EXPECT_EQ(getCurWeek(context, setup), 37);
    EXPECT_EQ(ageString(context, AgeMode::ObstetricAge, setup), "36 недель и 3 дня");
    EXPECT_EQ(ageString(context, AgeMode::TimeLeft, setup), "-");
  }
}

TEST_F(PregnancyCalendar, UnknownFirstDayCountsAsTheFirstDay) {
  today(at("2026-05-01 12:00"));
  Map noDate;
  Map textDate;
  textDate.set("dat1", "2026-03-20");
  for (const Map& setup : {noDate, textDate}) {
    EXPECT_EQ(getCurDay(context, setup), 1);
    EXPECT_EQ(getCurWeek(context, setup), 1);
    EXPECT_EQ(weekStartEnd(context, 1, 2, setup), "");
    EXPECT_EQ(pregnancyStateLine(context, setup), "Срок указан неправильно");
  }
}

TEST_F(PregnancyCalendar, TrimestersAndTheLastWeekShown) {
  struct Case {
    int week, trimester;
    const char* name;
  };
  const Case cases[] = {
      {13, 1, "Первый триместр"},
      {14, 2, "Второй триместр"},
      {26, 2, "Второй триместр"},
      {27, 3, "Третий триместр"},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(trimester(c.week), c.trimester) << c.week;
    EXPECT_EQ(trimesterName(context, c.week), c.name) << c.week;
  }
  EXPECT_TRUE(weekIsShown(42));
  EXPECT_FALSE(weekIsShown(43));
}

TEST_F(PregnancyCalendar, WeekStartEndRunsFromTheFirstDayOfOneWeekToTheLastOfAnother) {
  const Map setup = pregnancy("2026-03-20", "2026-04-03", "2026-12-25");
  EXPECT_EQ(weekStartEnd(context, 1, 1, setup), "20.03-26.03");
  EXPECT_EQ(weekStartEnd(context, 2, 3, setup), "27.03-09.04");
}

TEST_F(PregnancyCalendar, StateLineJoinsThePassedTimeAndTheRunningDay) {
  Map setup = pregnancy("2026-03-20", "2026-04-03", "2026-12-25");
  setup.set("birthdate2", at("2026-03-21"));  // ignored: the line is for a running pregnancy
  struct Case {
    const char* now;
    const char* line;
  };
  const Case cases[] = {
      {"2026-03-19 10:00", "Срок указан неправильно"},
      {"2026-03-20 10:00", "Идет 1 день 1 недели"},
      {"2026-03-21 10:00", "Прошел 1 день,\nидет 2 день 1 недели"},
      {"2026-03-30 00:30", "Прошла 1 неделя и 3 дня,\nидет 4 день 2 недели"},
  };
  for (const Case& c : cases) {
    today(at(c.now));
    EXPECT_EQ(pregnancyStateLine(context, setup), c.line) << c.now;
  }
}

}  // namespace
}  // namespace lad::health
