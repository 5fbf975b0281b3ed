// A pass over the cloud folder: every change file whose change date is later than its receipt
// is applied, oldest first, so that the latest change of a unit is the one that stays.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "core/value.h"

namespace lad {

class Context;
class Store;

struct PendingChange {
  std::string name;
  std::filesystem::path path;
  Date changed;
};

// The change files newer than their receipts, by change date; none without a cloud folder. Files of
// sync tools in progress are hidden; other names mark the old format as found.
std::vector<PendingChange> pendingChanges(Context& context);

struct SkippedChange {
  std::string name;
  std::string reason;
};

struct ScanReport {
  std::vector<std::string> applied;
  std::vector<SkippedChange> skipped;  // refused: tried again at the next pass
  std::vector<std::string> notes;      // parts of applied files that were left out
};

// Applies the pending files and takes the receipt of each applied one.
ScanReport scanCloudFolder(Store& store);

}  // namespace lad
