#include "platform/folder_watcher.h"

#include <gtest/gtest.h>

#include <condition_variable>
#include <mutex>

#include "tests/support/test_files.h"

namespace lad {
namespace {

// Counts the watcher's calls and lets the test wait for the next one.
class Calls {
 public:
  void add() {
    std::lock_guard lock(mutex_);
    ++count_;
    changed_.notify_all();
  }
  bool waitBeyond(int seen) {
    std::unique_lock lock(mutex_);
    return changed_.wait_for(lock, std::chrono::seconds(5), [&] { return count_ > seen; });
  }
  int count() {
    std::lock_guard lock(mutex_);
    return count_;
  }

 private:
  std::mutex mutex_;
  std::condition_variable changed_;
  int count_ = 0;
};

TEST(FolderWatcher, WritesMovesAndRemovalsInTheFolderAreToldAndAMissingFolderGivesNothing) {
  testing::TempDir dir;
  Calls calls;
  FolderWatcher watcher(dir.path(), [&] { calls.add(); });
  ASSERT_TRUE(watcher.watching());

  testing::writeFile(dir.path() / "a.tmp", "x");
  EXPECT_TRUE(calls.waitBeyond(0)) << "a file written";
  const int written = calls.count();
  std::filesystem::rename(dir.path() / "a.tmp", dir.path() / "CLOUD-1-a.dat");
  EXPECT_TRUE(calls.waitBeyond(written)) << "a file moved into place";
  const int moved = calls.count();
  std::filesystem::remove(dir.path() / "CLOUD-1-a.dat");
  EXPECT_TRUE(calls.waitBeyond(moved)) << "a file removed";

  FolderWatcher none(dir.path() / "missing", [] {});
  EXPECT_FALSE(none.watching());
}

}  // namespace
}  // namespace lad
