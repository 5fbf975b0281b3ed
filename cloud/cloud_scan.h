// What the cloud folder holds for this installation: the change files newer than their
// receipts, the files of the old format, and how much of the folder is complete.
#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "core/value.h"

namespace lad {
class Context;
class Store;
}  // namespace lad

namespace lad::cloud {

struct PendingChange {
  std::string name;
  std::filesystem::path path;
  Date changed;
};

// Sync tools write a file in several goes; a file counts as complete once it has not changed
// for this long.
inline constexpr std::chrono::milliseconds kSettleTime{1500};

struct CloudListing {
  std::vector<PendingChange> pending;            // oldest change first, then by name
  std::vector<std::filesystem::path> oldFormat;  // complete files of the old format
  int total = 0;                                 // files seen, complete or not
  int down = 0;                                  // complete files
  // The part of the folder that is complete, in whole percent; 0 for an empty folder.
  int percent() const;
};

// Lists the folder; none of it without a cloud folder. Hidden files and those of sync tools in
// progress are not seen. A name that is no change file, or a file in a subfolder, is of the old
// format and marks that format as found. Files younger than `settle` are not yet complete.
CloudListing listCloudFolder(Context& context, std::chrono::milliseconds settle);

struct SkippedChange {
  std::string name;
  std::string reason;
};

struct ScanReport {
  std::vector<std::string> applied;
  std::vector<SkippedChange> skipped;  // refused: tried again at the next pass
  std::vector<std::string> notes;      // parts of applied files that were left out
};

// Called with the files done so far and their number.
using ApplyProgress = std::function<void(std::size_t done, std::size_t total)>;

// Applies the pending files in order and takes the receipt of each applied one.
ScanReport applyPending(Store& store, const std::vector<PendingChange>& pending,
                        const ApplyProgress& progress = {});

// Lists the folder and applies what is pending, with no time to settle: for a folder that no
// sync tool is writing to.
ScanReport scanCloudFolder(Store& store);

}  // namespace lad::cloud
