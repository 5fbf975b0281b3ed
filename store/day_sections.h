// The sections of a list of diary days: weeks of a pregnancy, months of a child's age, months
// of the calendar year.
#pragma once

#include "core/value.h"

namespace lad {

class Context;

// Fills sections with one map per run of days of the same "group": "name", "name2" (the dates
// it spans, or "") and "count". Returns "section" and "row", the place to scroll to: the day
// before the last day up to today, -1 for none.
Map prepareGroupData(const Context& context, const List& days, const Map& setup, List& sections);

}  // namespace lad
