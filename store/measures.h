// The measures in which a food of the child's diet is counted.
#pragma once

#include <string>

namespace lad {

// The measure's name with its short form in brackets, such as "Миллилитры (мил.)"; "" for a
// number outside 1 to 5. Stored as it is, never translated.
std::string meraToRead(int measure);

// The short form with its closing bracket, such as "мил.)": what follows the opening bracket of
// the measure's name; "" for an unknown measure.
std::string measureShortName(int measure);

}  // namespace lad
