// Loading diary days: the days of a period with their records, the days between them made
// where the regim wants them, the running illness and diet carried from day to day.
#pragma once

#include <string>

#include "core/value.h"

namespace lad {

class Store;

// The days of the period that the edition and regim give (see day_regims.h and day_periods.h),
// in date order: year is the child's year of age from 1 or the woman's calendar year, date the
// first day of a pregnancy or the day of the one-day regim. The one-day regim always gives
// exactly one day. With no database the list is empty.
List loadNoteData(Store& store, int regim, int year, Date date, const std::string& gid);

// The day of the one-day regim, with its records and photo.
Map todayNoteForDay(Store& store, Date date, const std::string& gid);

}  // namespace lad
