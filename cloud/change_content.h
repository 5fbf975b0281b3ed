// The content of a change file, built from the store: one profile, one day of a profile, or one
// day of a child's feedings. A unit is always sent whole, so a deletion needs no mark of its own:
// a day that lost all its records goes with an empty "data".
#pragma once

#include <optional>
#include <string>

#include "cloud/change_names.h"
#include "core/value.h"

namespace lad {
class Store;
}  // namespace lad

namespace lad::cloud {

// "gid", "setup" and "images" (the profile's portrait, and a child's document files).
Map profileChange(Store& store, const std::string& gid);
// "gid", "setup", "data" (the day's records as "tp", "field", "source"), "const" (the whole
// dictionary), "images" (the day's photo with the name of its small copy, the analyses' files)
// and "date" (yyyy-MM-dd).
Map dayChange(Store& store, Date day, const std::string& gid);
// "gid", "setup", "kormdata" (the day's feedings), "const" and "date".
Map feedingChange(Store& store, Date day, const std::string& gid);

// Writes the change file of a profile (no day), a day or a child's feedings of a day into the
// cloud folder; gives the file's name, or nullopt and the reason when it could not be written.
std::optional<std::string> dataToCloud(Store& store, ChangeKind kind, std::optional<Date> day,
                                       const std::string& gid, std::string* error);

}  // namespace lad::cloud
