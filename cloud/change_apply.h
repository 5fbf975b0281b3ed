// Applying a change file of another installation to this one: a profile, a whole day of a
// profile with its files, or a child's feedings of a day, each replacing what is here; or the
// ticks of another installation, entry by entry.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "core/value.h"

namespace lad {
class Store;
}  // namespace lad

namespace lad::cloud {

struct ChangeOutcome {
  bool applied = false;
  std::string reason;              // why nothing was applied
  std::vector<std::string> notes;  // what of an applied file was left out
};

// Reads, checks and applies the file. A file that cannot be read, is no binary property list
// or holds values of the wrong kinds is refused with a reason, and nothing is written. Ticks
// older than the receipt of the file were applied before and are passed over.
ChangeOutcome applyChangeFile(Store& store, const std::filesystem::path& file,
                              std::optional<Date> receipt);

}  // namespace lad::cloud
