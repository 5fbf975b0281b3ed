// What the title page of the diary report says, by edition: the report's caption, the first day
// of the days it covers, and the caption and value pairs under the caption.
#pragma once

#include <string>

#include "core/value.h"

namespace lad {
class Store;
}

namespace lad::reports {

// The input dictionary of the report for the profile: "caption", "dat1", "cap1"/"val1" ... A
// pregnancy tells its dates of birth and its length or the child's age; a child its name,
// birthday and the year of life the report covers (year from 1); the woman the calendar year.
Map diaryReportInput(Store& store, const std::string& gid, int year);

}  // namespace lad::reports
