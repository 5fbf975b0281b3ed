#include "health/child_age.h"

#include "core/context.h"
#include "health/calendar_text.h"

namespace lad {

namespace {

struct CalendarSpan {
  int years = 0;
  int months = 0;
  int days = 0;
};

// Whole years first, then whole months from there, then the days left, as a calendar counts
// them: a year from 29 February ends on 28 February and the months go on from that day.
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

}  // namespace

std::string monthAge(const Context& context, Date from, Date to, bool noempty, bool nodays) {
  const CalendarSpan span = calendarSpan(context.dates(), from, to);
  std::string text;
  if (span.years >= 1)
    text = fillIn("%d %@", span.years, wordFor(context, span.years, "год", "года", "лет"));
  if (span.months >= 1) {
    if (!text.empty()) text += span.days > 0 ? ", " : context.translate(" и ");
    text +=
        fillIn("%d %@", span.months, wordFor(context, span.months, "месяц", "месяца", "месяцев"));
  }
  if (!nodays && span.days > 0) {
    if (!text.empty()) text += context.translate(" и ");
    text += fillIn("%d %@", span.days, wordFor(context, span.days, "день", "дня", "дней"));
  }
  if (text.empty() && span.years == 0 && span.months == 0 && noempty && span.days <= 0)
    return context.translate("Только что родился");
  return text;
}

}  // namespace lad
