#include "store/day_sections.h"

#include "core/context.h"
#include "core/date_names.h"
#include "core/text_fill.h"
#include "store/day_regims.h"

namespace lad {

namespace {

Date dateOf(const Map& setup, std::string_view key, const Context& context) {
  const std::optional<Date> date = setup[key].asDate();
  return date ? *date : context.clock().now();
}

std::string spanText(const DateCodec& dates, Date from, Date to, std::string_view pattern) {
  return fillIn("%@-%@", {dates.dateToString(from, pattern), dates.dateToString(to, pattern)});
}

Value sectionOf(const Context& context, const Map& setup, const Map& day, std::int64_t count) {
  const DateCodec& dates = context.dates();
  const std::int64_t group = day["group"].intValue();
  Map m;
  switch (dayEdition(context.values().appid)) {
    case DayEdition::Pregnancy: {
      const Date first = dateOf(setup, "dat1", context);
      const int days = static_cast<int>(group * 7);
      m.set("name", fillIn(context.translate("%d неделя"), group));
      m.set("name2", spanText(dates, dates.addDays(first, days - 7), dates.addDays(first, days - 1),
                              "dd.MM"));
      break;
    }
    case DayEdition::Child: {
      const Date born = dateOf(setup, "birthdate", context);
      const int months = static_cast<int>(group);
      m.set("name", fillIn(context.translate("%d-й месяц"), day["month"].intValue()));
      m.set("name2", spanText(dates, dates.addMonths(born, months - 1),
                              dates.addDays(dates.addMonths(born, months), -1), "dd.MM.yy"));
      break;
    }
    case DayEdition::Woman:
      m.set("name", capitalizeFirst(monthName(static_cast<int>(group), context.translator())));
      m.set("name2", "");
      break;
  }
  m.set("count", count);
  return Value(std::move(m));
}

}  // namespace

Map prepareGroupData(const Context& context, const List& days, const Map& setup, List& sections) {
  sections.clear();
  const Date now = context.clock().now();
  std::int64_t section = -1;
  std::int64_t row = -1;
  std::int64_t count = 0;
  const Map* first = nullptr;  // the first day of the running section
  for (const Value& each : days) {
    const Map* day = each.asMap();
    if (!day) continue;
    const std::optional<Date> dat = (*day)["dat"].asDate();
    if (dat && context.dates().getDays(*dat, now) >= 0) {
      section = static_cast<std::int64_t>(sections.size());
      row = count - 1;
    }
    if (first && (*day)["group"].intValue() != (*first)["group"].intValue()) {
      sections.push_back(sectionOf(context, setup, *first, count));
      count = 0;
      first = nullptr;
    }
    if (!first) first = day;
    ++count;
  }
  if (first) sections.push_back(sectionOf(context, setup, *first, count));
  Map place;
  place.set("section", section);
  place.set("row", row);
  return place;
}

}  // namespace lad
