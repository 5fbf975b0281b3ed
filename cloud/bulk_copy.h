// The copy of everything of this installation into the cloud folder, which then holds this
// installation's diary and nothing older: each profile, each day with records or a photo, each
// child's feedings of a day, then the folder cleared of the units that were not written. It runs
// in steps, so that its host can show the progress between them.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "cloud/change_names.h"
#include "core/value.h"

namespace lad {
class Store;
}  // namespace lad

namespace lad::cloud {

class BulkCopy {
 public:
  // Collects the units to write.
  explicit BulkCopy(Store& store);

  // Writes up to `count` units; after the last one it clears the folder. False once done.
  bool step(std::size_t count);
  bool done() const { return done_; }
  // The progress as the dialog shows it: percent and what is being done.
  int percent() const;
  std::string message() const;
  std::size_t unitCount() const { return units_.size(); }
  // The units that could not be written, and why.
  const std::vector<std::string>& errors() const { return errors_; }

 private:
  struct Unit {
    ChangeKind kind;
    std::optional<Date> day;
    std::string gid;
  };
  void collectDays();
  void collectPhotoDays();
  void collectFeedings();
  std::size_t firstOf(ChangeKind kind) const;
  std::size_t countOf(ChangeKind kind) const;

  Store& store_;
  std::vector<Unit> units_;  // profiles, then days, then feedings
  std::size_t next_ = 0;
  std::vector<std::string> written_;
  std::vector<std::string> errors_;
  bool done_ = false;
};

// Deletes from the cloud folder the change files not in `keep`, and the files of the old
// format that this program made. Other files, and hidden ones, are left alone.
void cloudOptimize(const Store& store, const std::vector<std::string>& keep);

}  // namespace lad::cloud
