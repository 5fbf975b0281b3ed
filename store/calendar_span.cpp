#include "store/calendar_span.h"

namespace lad {

CalendarSpan calendarSpan(const DateCodec& dates, Date from, Date to) {
  from = dates.noTime(from);
  to = dates.noTime(to);
  CalendarSpan span;
  span.years = dates.getMonths(from, to) / 12;
  const Date afterYears = dates.addYears(from, span.years);
  span.months = dates.getMonths(afterYears, to);
  span.days = dates.getDays(dates.addMonths(afterYears, span.months), to);
  return span;
}

}  // namespace lad
