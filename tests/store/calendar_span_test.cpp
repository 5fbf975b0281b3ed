#include "store/values/calendar_span.h"

#include <gtest/gtest.h>

namespace lad {
namespace {

class CalendarSpanTest : public ::testing::Test {
 protected:
  DateCodec dates{"Europe/Berlin", 1};
  Date at(int d, int m, int y) const { return dates.encodeDate(d, m, y); }
  std::string span(Date from, Date to) const {
    const CalendarSpan s = calendarSpan(dates, from, to);
    return std::to_string(s.years) + "y" + std::to_string(s.months) + "m" + std::to_string(s.days) +
           "d";
  }
};

TEST_F(CalendarSpanTest, MonthEndsAndLeapDaysCountAsACalendarDoes) {
  struct Case {
    Date from, to;
    const char* expected;
  } const cases[] = {
      {at(29, 2, 2024), at(28, 2, 2025), "1y0m0d"},   {at(29, 2, 2024), at(1, 3, 2025), "1y0m1d"},
      {at(31, 1, 2025), at(28, 2, 2025), "0y1m0d"},   {at(31, 1, 2025), at(27, 2, 2025), "0y0m27d"},
      {at(15, 3, 2025), at(15, 3, 2025), "0y0m0d"},   {at(15, 3, 2025), at(14, 3, 2025), "0y0m-1d"},
      {at(15, 3, 2025), at(10, 1, 2025), "0y-2m-5d"},
  };
  for (const Case& c : cases)
    EXPECT_EQ(span(c.from, c.to), c.expected) << dates.dateToString(c.from, "dd.MM.yyyy") << " "
                                              << dates.dateToString(c.to, "dd.MM.yyyy");
}

TEST_F(CalendarSpanTest, AgreesWithCalendarStepsOverThreeYears) {
  for (int f = 0; f < 800; f += 13) {
    const Date from = dates.addDays(at(25, 1, 2024), f);
    for (int t = 0; t < 1200; t += 5) {
      const Date to = dates.addDays(from, t);
      const CalendarSpan s = calendarSpan(dates, from, to);
      const Date back =
          dates.addDays(dates.addMonths(dates.addYears(from, s.years), s.months), s.days);
      ASSERT_EQ(dates.getDays(back, to), 0) << f << " " << t;
      ASSERT_GE(s.months, 0);
      ASSERT_LT(s.months, 12);
      ASSERT_GE(s.days, 0);
      ASSERT_LT(s.days, 31);
    }
  }
}

}  // namespace
}  // namespace lad
