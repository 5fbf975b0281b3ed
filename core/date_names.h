// Names of weekdays and months as the interface shows them, each through the translation table.
#pragma once

#include <string>

#include "core/translation.h"

namespace lad {

// Short weekday name for 1 (Sunday) to 7 (Saturday); any other number is Saturday.
std::string weekday(int day, const Translator& translator);
// Full weekday name, numbered likewise.
std::string weekdayfull(int day, const Translator& translator);
// Month name in the nominative, lower case, for 1 to 12; any other number is December.
std::string monthName(int month, const Translator& translator);

}  // namespace lad
