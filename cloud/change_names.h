// The names of the change files in the cloud folder: one name per unit of data, so that every
// installation that writes the same unit replaces the same file.
#pragma once

#include <string>
#include <string_view>

#include "core/value.h"

namespace lad {
class Context;
}  // namespace lad

namespace lad::cloud {

// The kinds of change file: the number after "CLOUD-".
enum ChangeKind { kChangeProfile = 1, kChangeDay = 2, kChangeTicks = 3, kChangeFeedings = 4 };

// "CLOUD-<kind>-<guid>.dat".
std::string changeFileName(int kind, std::string_view guid);
// "CLOUD-<kind>-<guid>-<part>.dat": the part is a day as dd-MM-yyyy, or the installation's guid.
std::string changeFileName(int kind, std::string_view guid, std::string_view part);
// The day as the name of a change file spells it.
std::string changeDayPart(const Context& context, Date day);

// Whether the scan reads the file at all: sync tools keep their unfinished copies under dot
// names or with a temporary ending, and so does the atomic write of this program.
bool isHiddenFromScan(std::string_view name);
// A name that is a change file; anything else in the folder is data of the old format.
bool isChangeFileName(std::string_view name);
// A file of check-list ticks: "CLOUD-3" begins its name.
bool isTicksFileName(std::string_view name);
// Names ending ".del" are reserved: the scan passes them over and never takes a receipt.
bool isReservedName(std::string_view name);

}  // namespace lad::cloud
