#include "store/day_periods.h"

#include "core/context.h"
#include "store/day_regims.h"

namespace lad {

namespace {

constexpr int kChildTableYears = 16;

DayPeriod between(const DateCodec& dates, Date start, Date end, bool endIncluded) {
  return {start, end, endIncluded, std::nullopt, dates.getDays(start, end)};
}

DayPeriod pregnancyPeriod(const DateCodec& dates, int regim, Date date) {
  const Date start = dates.noTime(date);
  DayPeriod period = between(dates, start, dates.addDays(start, kPregnancyListDays), true);
  if (regim == kOneDayRegim) period.dayEnd = dates.addDays(start, 1);
  return period;
}

DayPeriod childPeriod(const Context& context, int regim, int year, Date date, const Map& setup) {
  const DateCodec& dates = context.dates();
  if (regim == kOneDayRegim) {
    const Date day = dates.noTime(date);
    return between(dates, day, dates.addDays(day, 1), false);
  }
  const bool tables = regim == 3 || regim == 4;
  if (tables && year < 1)
    return between(dates, birthdayOfYear(context, setup, 1),
                   birthdayOfYear(context, setup, 1 + kChildTableYears), false);
  return between(dates, birthdayOfYear(context, setup, year),
                 birthdayOfYear(context, setup, year + 1), false);
}

DayPeriod womanPeriod(const DateCodec& dates, int regim, int year, Date date) {
  if (regim == kOneDayRegim) {
    const Date day = dates.noTime(date);
    return between(dates, day, dates.addDays(day, 1), false);
  }
  if (regim == 5 || regim == 6) {
    const DateParts parts = dates.decodeDate(date);
    return between(dates, date, dates.encodeDate(1, parts.month + 1, parts.year), false);
  }
  return between(dates, dates.encodeDate(1, 1, year), dates.encodeDate(1, 1, year + 1), false);
}

}  // namespace

Date birthdayOfYear(const Context& context, const Map& setup, int year) {
  const DateCodec& dates = context.dates();
  const Value& stored = setup["birthdate"];
  const Date birthdate = stored.asDate() ? *stored.asDate() : context.clock().now();
  const DateParts born = dates.decodeDate(birthdate);
  // A day past the end of the month rolls over: 29 February of a common year is 1 March.
  return dates.encodeDate(born.day, born.month, born.year + year - 1);
}

DayPeriod dayPeriod(const Context& context, int regim, int year, Date date, const Map& setup) {
  switch (dayEdition(context.values().appid)) {
    case DayEdition::Child:
      return childPeriod(context, regim, year, date, setup);
    case DayEdition::Woman:
      return womanPeriod(context.dates(), regim, year, date);
    case DayEdition::Pregnancy:
      break;
  }
  return pregnancyPeriod(context.dates(), regim, date);
}

}  // namespace lad
