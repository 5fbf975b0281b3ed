// Fuzz target of change files from another installation: any bytes under the name of a change
// file, applied to a real installation on a temporary folder. The first byte chooses the kind
// of file (its two low bits) and the edition (pregnancy or child); the rest is the file. A file
// that is refused says why and leaves the diary's database and files exactly as they were; what
// does not read as a property list says why too.
#include <sys/stat.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

#include "cloud/change_apply.h"
#include "cloud/change_names.h"
#include "cloud/property_list.h"
#include "core/clock.h"
#include "core/context.h"
#include "core/launch.h"
#include "fuzz/fuzz_input.h"
#include "store/first_launch.h"
#include "store/store.h"
#include "tests/support/test_files.h"

namespace {

using lad::fuzz::check;

constexpr const char* kGid = "00000000-0000-0000-0001-000000000001";

// What a file under the data folder was: its inode, size and time of change, which any write
// or replacement changes, and its bytes when they were read. A folder has neither size nor
// bytes.
struct Entry {
  ino_t inode = 0;
  off_t size = -1;
  std::int64_t changedNs = 0;
  std::optional<std::string> bytes;

  bool sameStat(const Entry& other) const {
    return inode == other.inode && size == other.size && changedNs == other.changedNs;
  }
};

using Tree = std::map<std::string, Entry>;

Entry entryOf(const std::filesystem::path& path) {
  struct stat status {};
  if (lstat(path.c_str(), &status) != 0) return {};
  Entry entry{status.st_ino, S_ISREG(status.st_mode) ? status.st_size : -1,
              status.st_ctim.tv_sec * 1'000'000'000LL + status.st_ctim.tv_nsec, std::nullopt};
  return entry;
}

// The folder as it is now; bytes are read only when asked for.
Tree treeOf(const std::filesystem::path& root, bool withBytes) {
  Tree tree;
  for (const auto& found : std::filesystem::recursive_directory_iterator(root)) {
    Entry entry = entryOf(found.path());
    if (withBytes && entry.size >= 0) entry.bytes = lad::testing::readFile(found.path());
    tree.emplace(found.path().string(), std::move(entry));
  }
  return tree;
}

// Whether the file at path holds what it held: the same stat, or else the same bytes.
bool sameFile(const std::string& path, const Entry& now, const Entry& was) {
  if (now.sameStat(was)) return true;
  if (now.size != was.size) return false;
  return now.size < 0 || lad::testing::readFile(path) == *was.bytes;
}

// Whether nothing under the folder changed: every file and folder has the stat it had. A file
// made, removed or renamed anywhere changes the stat of its folder, so this needs no walk.
bool untouched(const Tree& was) {
  for (const auto& [path, entry] : was)
    if (!entryOf(path).sameStat(entry)) return false;
  return true;
}

// The paths that are new, gone or changed since the folder was as it was.
std::vector<std::string> differences(const Tree& now, const Tree& was) {
  std::vector<std::string> paths;
  for (const auto& [path, entry] : now)
    if (const auto found = was.find(path);
        found == was.end() || !sameFile(path, entry, found->second))
      paths.push_back(path);
  for (const auto& [path, entry] : was)
    if (!now.contains(path)) paths.push_back(path);
  return paths;
}

// Puts the changed paths back as they were: what is new goes, what changed or went is written
// again (a folder sorts before its contents, so the folder is made first).
void restore(const std::vector<std::string>& paths, const Tree& was) {
  std::vector<std::string> sorted = paths;
  std::sort(sorted.begin(), sorted.end());
  for (const std::string& path : sorted) {
    std::error_code ignored;
    const auto found = was.find(path);
    if (found == was.end()) {
      std::filesystem::remove_all(path, ignored);
    } else if (found->second.bytes) {
      std::filesystem::remove(path, ignored);
      lad::testing::writeFile(path, *found->second.bytes);
    } else {
      std::filesystem::create_directories(path);
    }
  }
}

// One installation per edition for the whole run, launched once: launching takes far longer
// than an input. Every input starts from the installation as it was launched: its data folder
// (the database, the documents, the settings and the cloud folder) is put back file by file
// after an input that changed it, and each input gets a new Store, so nothing the store keeps
// in memory carries over. Nothing on the way of a change file writes the settings or the
// process values, which therefore stay as launched.
class Installation {
 public:
  explicit Installation(int appid) {
    auto clock = std::make_shared<lad::ManualClock>(*lad::dateFromIso("2026-03-30T08:00:00Z"),
                                                    "Europe/Berlin");
    context_ = std::make_unique<lad::Context>(
        lad::ContextOptions{appid, 1, data_.path(), "1.0", clock, LADANEYA_RESOURCES_DIR});
    lad::launch(*context_);
    lad::Store store(*context_);
    lad::fromOldVersion(store);
    launched_ = treeOf(data_.path(), true);
  }

  // Applies the file to the installation as launched and returns what came of it. A refusal
  // must leave every file as it was.
  lad::ChangeOutcome apply(const std::filesystem::path& file) {
    lad::Store store(*context_);
    const lad::ChangeOutcome outcome = lad::applyChangeFile(store, file, std::nullopt);
    if (untouched(launched_)) return outcome;
    const std::vector<std::string> changed = differences(treeOf(data_.path(), false), launched_);
    if (!outcome.applied) check(changed.empty());
    restore(changed, launched_);
    relaunched();
    return outcome;
  }

  const std::filesystem::path& incoming() const { return incoming_.path(); }

 private:
  // After a restore, or a write of the same bytes, the files hold the launched bytes under new
  // stats: those stats are what the next inputs compare with.
  void relaunched() {
    Tree now = treeOf(data_.path(), true);
    for (const auto& [path, entry] : now) {
      const auto found = launched_.find(path);
      check(found != launched_.end() && found->second.bytes == entry.bytes);
    }
    check(now.size() == launched_.size());
    launched_ = std::move(now);
  }

  lad::testing::TempDir data_, incoming_;
  std::unique_ptr<lad::Context> context_;
  Tree launched_;
};

Installation& installation(bool child) {
  static Installation pregnancy(1), children(2);
  return child ? children : pregnancy;
}

std::string fileName(int kind) {
  const std::string part = kind == lad::kChangeTicks ? "DEVICE" : "30-03-2026";
  return kind == lad::kChangeProfile ? lad::changeFileName(kind, kGid)
                                     : lad::changeFileName(kind, kGid, part);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  lad::fuzz::FuzzInput input(data, size);
  const std::uint8_t choice = input.byte();
  const std::string_view bytes = input.rest();

  std::string error;
  const auto value = lad::fromPropertyList(
      {reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()}, &error);
  check(value.has_value() == error.empty());

  Installation& on = installation(choice & 4);
  const auto file = on.incoming() / fileName(choice % 4 + 1);
  lad::testing::writeFile(file, bytes);
  const lad::ChangeOutcome outcome = on.apply(file);
  check(outcome.applied == outcome.reason.empty());
  return 0;
}
