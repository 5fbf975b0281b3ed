// The span of days that a load of diary days covers, by edition, regim and year.
#pragma once

#include <optional>

#include "core/value.h"

namespace lad {

class Context;

// A pregnancy's diary runs this many days from its first day.
inline constexpr int kPregnancyListDays = 294;

struct DayPeriod {
  Date start;                  // the first day, 00:00 (as given in the month regims)
  Date end;                    // the bound of the last day
  bool endIncluded = false;    // pregnancy rows include the end day
  std::optional<Date> dayEnd;  // the one-day pregnancy load: rows before this day only
  int dayCount = 0;            // the days from start to end: the days that filling makes
};

// The child's birthday in the year of age `year` (1 for the day of birth), from the setup's
// birthdate (today without one). A 29 February that the year lacks becomes 1 March.
Date birthdayOfYear(const Context& context, const Map& setup, int year);

// The period of a load: year is the child's year of age or the woman's calendar year, date the
// first day of a pregnancy or the day of the one-day regim.
DayPeriod dayPeriod(const Context& context, int regim, int year, Date date, const Map& setup);

}  // namespace lad
