#include "store/day_strings.h"

#include "core/context.h"
#include "core/date_names.h"
#include "core/text_fill.h"
#include "store/day_regims.h"
#include "store/store.h"
#include "store/values/calendar_span.h"
#include "store/values/reading_forms.h"

namespace lad {

namespace {

Value color(double r, double g, double b, double a) {
  Map m;
  m.set("r", r);
  m.set("g", g);
  m.set("b", b);
  m.set("a", a);
  return Value(std::move(m));
}

bool inRegims(int regim, std::initializer_list<int> regims) {
  for (int r : regims)
    if (r == regim) return true;
  return false;
}

// "70.5 (+1.5)", "70.5 (-0.5)" or "70.5": a measure and its difference from a base.
std::string withDifference(double value, double base, int decimals) {
  const double d = value - base;
  const std::string text = formatFixed(value, decimals);
  if (d > 0) return text + " (+" + formatFixed(d, decimals) + ")";
  if (d < 0) return text + " (" + formatFixed(d, decimals) + ")";
  return text;
}

// The day's measure under key as text, against the setup's base when compared; a base of 0
// takes the day's value when adopt is set.
void formatMeasure(Map& day, Map& setup, std::string_view key, int decimals, bool compared,
                   bool adopt) {
  const Value* stored = day.find(key);
  if (!stored) return;
  const double value = stored->doubleValue();
  double base = setup[key].doubleValue();
  if (compared && adopt && base == 0) {
    setup.set(key, value);
    base = value;
  }
  day.set(key, compared && base > 0 ? withDifference(value, base, decimals)
                                    : formatFixed(value, decimals));
}

void markBirth(Map& day, const Map& setup, const DateCodec& dates, Date dat) {
  const std::optional<Date> birth = setup["birthdate2"].asDate();
  if (!birth || dates.getDays(*birth, dat) != 0) return;
  day.set("isbirthdate", true);
  if (const Value* result = setup.find("birthresult")) day.set("birthresult", *result);
}

void setGroup(const Context& context, DayEdition edition, Map& day, const Map& setup, Date dat) {
  const DateCodec& dates = context.dates();
  if (edition == DayEdition::Pregnancy) {
    const std::optional<Date> first = setup["dat1"].asDate();
    day.set("group", dates.getDays(first ? *first : dat, dat) / 7 + 1);
    markBirth(day, setup, dates, dat);
  } else if (edition == DayEdition::Child) {
    const std::optional<Date> born = setup["birthdate"].asDate();
    const CalendarSpan age = calendarSpan(dates, born ? *born : dat, dat);
    day.set("year", age.years);
    day.set("month", age.months + 1);
    day.set("group", age.years * 12 + age.months + 1);
  } else {
    const DateParts parts = dates.decodeDate(dat);
    day.set("group", parts.month);
    day.set("month", parts.month);
    day.set("year", parts.year);
  }
}

// The running illness: a named illness starts it, the recovery entry ends it, a day without an
// entry keeps it. The recovery day is marked but not coloured.
void carryIllness(const Store& store, DayEdition edition, Map& day, Map& setup, bool notLater) {
  const std::string b = day["bolezn"].text();
  const bool recovery = !b.empty() && b == store.boleznId();
  bool on = setup["isbolezn"].boolValue();
  if (!b.empty()) on = !recovery;
  if (on && notLater && edition != DayEdition::Woman) day.set("color", illnessDayColor());
  setup.set("isbolezn", on);
  day.set("isbolezn", on || recovery);
}

// The running diet: 1000 ends it, a number of 1 or more starts it, anything else keeps it.
void carryDiet(Map& day, Map& setup) {
  const std::int64_t n = day["dieta"].intValue();
  bool on = setup["isdieta"].boolValue();
  if (n == kDietEnd)
    on = false;
  else if (n >= 1)
    on = true;
  setup.set("isdieta", on);
  day.set("isdieta", on || n == kDietEnd);
}

std::string dateWithFullWeekday(const Context& context, Date dat) {
  return context.dates().dateToString(dat, "dd.MM.yyyy") + " " +
         weekdayfull(context.dates().decodeDate(dat).weekday, context.translator());
}

void setShortDay(const Context& context, Map& day, Date dat) {
  day.set("day", context.dates().dateToString(dat, "dd"));
  day.set("weekday", weekday(context.dates().decodeDate(dat).weekday, context.translator()));
}

void pregnancyStrings(const Context& context, Map& day, Map& setup, int regim, Date dat) {
  const int weekdayNumber = context.dates().decodeDate(dat).weekday;
  day.set("weekdatint", weekdayNumber);
  day.set("weekday", weekday(weekdayNumber, context.translator()));
  day.set("day",
          context.dates().dateToString(dat, inRegims(regim, {4, 8}) ? "dd MMMM yyyy" : "dd"));
  markBirth(day, setup, context.dates(), dat);
  formatMeasure(day, setup, "ves", 1, inRegims(regim, {1, 4, 5}), false);
}

void childStrings(const Context& context, Map& day, Map& setup, int regim, Date dat) {
  const bool compared = inRegims(regim, {1, 5, 6, 8});
  formatMeasure(day, setup, "ves", 3, compared, true);
  formatMeasure(day, setup, "rost", 1, compared, true);
  if (inRegims(regim, {3, 6, 8}))
    day.set("day", dateWithFullWeekday(context, dat));
  else
    setShortDay(context, day, dat);
}

void womanStrings(const Context& context, Map& day, Map& setup, int regim, Date dat) {
  if (regim == 3)
    day.set("day", dateWithFullWeekday(context, dat));
  else
    setShortDay(context, day, dat);
  const std::int64_t type = day["daytype"].intValue();
  day.set("womantype", type >= 2 ? womanDayToRead(context, static_cast<int>(type)) : "");
  day.set("tp", day.contains("daytype") ? type : 1);
  formatMeasure(day, setup, "ves", 3, false, false);
}

}  // namespace

Map initNoteStruct(Date dat) {
  Map day;
  day.set("dat", dat);
  for (const char* flag : {"isbirthdate", "istoday", "isphoto", "isbolezn", "isdieta"})
    day.set(flag, false);
  return day;
}

Value plainDayColor() {
  return color(0, 0, 0, 0.1);
}

Value illnessDayColor() {
  return color(0.8, 0, 0, 0.5);
}

void updateNoteStrings(const Store& store, Map& day, Map& setup, int regim, bool simple) {
  const Context& context = store.context();
  const DayEdition edition = dayEdition(context.values().appid);
  const std::optional<Date> dat = day["dat"].asDate();
  if (isCountsRegim(edition, regim) || !dat) return;
  const int fromToday = context.dates().getDays(*dat, context.clock().now());
  day.set("color", plainDayColor());
  if (fromToday == 0) day.set("istoday", true);
  setGroup(context, edition, day, setup, *dat);
  day.set("compliteOK", false);
  if (edition == DayEdition::Pregnancy && regim == 3)
    formatMeasure(day, setup, "ves", 2, false, false);
  if (simple) return;
  day.set("compliteOK", true);
  carryIllness(store, edition, day, setup, fromToday >= 0);
  carryDiet(day, setup);
  if (edition == DayEdition::Pregnancy)
    pregnancyStrings(context, day, setup, regim, *dat);
  else if (edition == DayEdition::Child)
    childStrings(context, day, setup, regim, *dat);
  else
    womanStrings(context, day, setup, regim, *dat);
}

}  // namespace lad
