#include "health/child_age.h"

#include "core/context.h"
#include "health/calendar_text.h"
#include "store/values/calendar_span.h"

namespace lad::health {

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

}  // namespace lad::health
