// The calendar distance between two days in whole years, months and days, as ages are told.
#pragma once

#include "core/dates.h"

namespace lad {

struct CalendarSpan {
  int years = 0;
  int months = 0;
  int days = 0;
};

// Whole years first, then whole months from there, then the days left, as a calendar counts
// them: a year from 29 February ends on 28 February and the months go on from that day. Both
// dates are taken at their midnight.
CalendarSpan calendarSpan(const DateCodec& dates, Date from, Date to);

}  // namespace lad
