// What the photo book says of its profile: the caption, the lines of the cover and the spine,
// the first day, the kind, and the profile's photograph when there is one.
#pragma once

#include <string>

#include "core/value.h"

namespace lad {
class Store;
}

namespace lad::reports {

// The book dictionary of the profile for a book of the kind; `year` is the child's year of
// life from 1 (child edition) or the calendar year (cycle edition).
Map bookDictionary(Store& store, const std::string& gid, int kind, int year);

}  // namespace lad::reports
