#include "store/values/calendar_span.h"

#include <chrono>

namespace lad {

namespace {

using std::chrono::year_month_day;

year_month_day civil(const DateCodec& dates, Date d) {
  const DateParts p = dates.decodeDate(d);
  return year_month_day(std::chrono::year(p.year), std::chrono::month(unsigned(p.month)),
                        std::chrono::day(unsigned(p.day)));
}

int monthIndex(const year_month_day& d) {
  return int(d.year()) * 12 + int(unsigned(d.month())) - 1;
}

// The date whole months after `from`, its day cut back to the end of a shorter month.
year_month_day addMonths(const year_month_day& from, int months) {
  const int index = monthIndex(from) + months;
  const auto ym = std::chrono::year_month(std::chrono::year(index / 12),
                                          std::chrono::month(unsigned(index % 12 + 1)));
  const auto last = (ym / std::chrono::last).day();
  return year_month_day(ym.year(), ym.month(), std::min(from.day(), last));
}

// Whole months from `from` to `to`: the furthest month step from `from` that does not pass `to`.
int wholeMonths(const year_month_day& from, const year_month_day& to) {
  int months = monthIndex(to) - monthIndex(from);
  const std::chrono::sys_days target(to);
  if (months > 0 && std::chrono::sys_days(addMonths(from, months)) > target) --months;
  if (months < 0 && std::chrono::sys_days(addMonths(from, months)) < target) ++months;
  return months;
}

}  // namespace

CalendarSpan calendarSpan(const DateCodec& dates, Date from, Date to) {
  const year_month_day start = civil(dates, from);
  const year_month_day end = civil(dates, to);
  CalendarSpan span;
  span.years = wholeMonths(start, end) / 12;
  const year_month_day afterYears = addMonths(start, span.years * 12);
  span.months = wholeMonths(afterYears, end);
  span.days =
      int((std::chrono::sys_days(end) - std::chrono::sys_days(addMonths(afterYears, span.months)))
              .count());
  return span;
}

}  // namespace lad
