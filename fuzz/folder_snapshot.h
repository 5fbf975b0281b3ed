// A folder's files as they were at one moment, for the targets that run an installation: what
// changed since is found by the files' stats, and put back file by file, which costs far less
// than launching the installation again. The clock of the files' times ticks coarsely, so a
// file written in the tick of the snapshot's newest write can keep its stat: such files are
// compared by their bytes.
#pragma once

#include <sys/stat.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include "fuzz/fuzz_input.h"
#include "tests/support/test_files.h"

namespace lad::fuzz {

class FolderSnapshot {
 public:
  explicit FolderSnapshot(std::filesystem::path root) : root_(std::move(root)) {
    keep(treeOf(root_, true));
  }

  // The paths that are new, gone or changed since the snapshot.
  std::vector<std::string> changes() const {
    std::vector<std::string> paths;
    const Tree now = treeOf(root_, false);
    for (const auto& [path, entry] : now)
      if (const auto found = was_.find(path);
          found == was_.end() || !sameFile(path, entry, found->second))
        paths.push_back(path);
    for (const auto& [path, entry] : was_)
      if (!now.contains(path)) paths.push_back(path);
    return paths;
  }

  // Puts the changed paths back as they were: what is new goes, what changed or went is
  // written again (a folder sorts before its contents, so the folder is made first). The
  // files then hold the bytes of the snapshot under new stats, which the next changes compare
  // with.
  void restore(std::vector<std::string> paths) {
    if (paths.empty()) return;
    std::sort(paths.begin(), paths.end());
    for (const std::string& path : paths) {
      std::error_code ignored;
      const auto found = was_.find(path);
      if (found == was_.end()) {
        std::filesystem::remove_all(path, ignored);
      } else if (found->second.bytes) {
        std::filesystem::remove(path, ignored);
        lad::testing::writeFile(path, *found->second.bytes);
      } else {
        std::filesystem::create_directories(path);
      }
    }
    Tree now = treeOf(root_, true);
    check(now.size() == was_.size());
    for (const auto& [path, entry] : now) {
      const auto found = was_.find(path);
      check(found != was_.end() && found->second.bytes == entry.bytes);
    }
    keep(std::move(now));
  }

 private:
  // What a file under the folder was: its inode, size and time of change, which any write or
  // replacement changes, and its bytes when they were read. A folder has neither size nor bytes.
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

  static Entry entryOf(const std::filesystem::path& path) {
    struct stat status {};
    if (lstat(path.c_str(), &status) != 0) return {};
    return {status.st_ino, S_ISREG(status.st_mode) ? status.st_size : -1,
            status.st_ctim.tv_sec * 1'000'000'000LL + status.st_ctim.tv_nsec, std::nullopt};
  }

  // The folder as it is now, with itself; bytes are read only when asked for.
  static Tree treeOf(const std::filesystem::path& root, bool withBytes) {
    Tree tree;
    tree.emplace(root.string(), entryOf(root));
    for (const auto& found : std::filesystem::recursive_directory_iterator(root)) {
      Entry entry = entryOf(found.path());
      if (withBytes && entry.size >= 0) entry.bytes = lad::testing::readFile(found.path());
      tree.emplace(found.path().string(), std::move(entry));
    }
    return tree;
  }

  void keep(Tree tree) {
    was_ = std::move(tree);
    newestNs_ = 0;
    for (const auto& [path, entry] : was_) newestNs_ = std::max(newestNs_, entry.changedNs);
  }

  // Whether the file at path holds what it held: the same stat from before the newest write,
  // or else the same bytes. A folder holds nothing of its own.
  bool sameFile(const std::string& path, const Entry& now, const Entry& was) const {
    if (now.sameStat(was) && was.changedNs < newestNs_) return true;
    if (now.size != was.size) return false;
    return now.size < 0 || lad::testing::readFile(path) == *was.bytes;
  }

  std::filesystem::path root_;
  Tree was_;
  std::int64_t newestNs_ = 0;
};

}  // namespace lad::fuzz
