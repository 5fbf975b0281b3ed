#include "platform/folder_watcher.h"

#include <gtest/gtest.h>

#include "tests/support/test_files.h"
#include "tests/support/wait_counter.h"

namespace lad::platform {
namespace {

TEST(FolderWatcher, WritesMovesAndRemovalsInTheFolderAreToldAndAMissingFolderGivesNothing) {
  testing::TempDir dir;
  testing::WaitCounter calls;
  FolderWatcher watcher(dir.path(), [&] { calls.bump(); });
  ASSERT_TRUE(watcher.watching());

  testing::writeFile(dir.path() / "a.tmp", "x");
  EXPECT_TRUE(calls.waitAtLeast(1)) << "a file written";
  const int written = calls.value();
  std::filesystem::rename(dir.path() / "a.tmp", dir.path() / "CLOUD-1-a.dat");
  EXPECT_TRUE(calls.waitAtLeast(written + 1)) << "a file moved into place";
  const int moved = calls.value();
  std::filesystem::remove(dir.path() / "CLOUD-1-a.dat");
  EXPECT_TRUE(calls.waitAtLeast(moved + 1)) << "a file removed";

  FolderWatcher none(dir.path() / "missing", [] {});
  EXPECT_FALSE(none.watching());
}

}  // namespace
}  // namespace lad::platform
