// The snapshot that puts an installation's folder back between fuzz inputs: it must see every
// file made, changed or removed, at the top of the folder as deep in it, and put back the bytes.
#include "fuzz/folder_snapshot.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "tests/support/test_files.h"

namespace {

using lad::testing::readFile;
using lad::testing::writeFile;

TEST(FolderSnapshotTest, FindsWhatChangedAndPutsItBack) {
  lad::testing::TempDir dir;
  const auto root = dir.path();
  std::filesystem::create_directories(root / "sub");
  writeFile(root / "a.txt", "one");
  writeFile(root / "sub" / "b.txt", "two");
  lad::fuzz::FolderSnapshot snapshot(root);
  EXPECT_TRUE(snapshot.changes().empty());

  // Written again with the same bytes: nothing changed.
  writeFile(root / "a.txt", "one");
  EXPECT_TRUE(snapshot.changes().empty());

  // Other bytes of the same length, at once: the file's times may not have moved.
  writeFile(root / "sub" / "b.txt", "TWO");
  EXPECT_EQ(snapshot.changes(), std::vector<std::string>{(root / "sub" / "b.txt").string()});

  writeFile(root / "new.txt", "made");
  writeFile(root / "sub" / "b.txt", "three");
  std::filesystem::remove(root / "a.txt");
  std::filesystem::create_directories(root / "made" / "deep");
  std::vector<std::string> changed = snapshot.changes();
  std::sort(changed.begin(), changed.end());
  EXPECT_EQ(changed, (std::vector<std::string>{(root / "a.txt").string(), (root / "made").string(),
                                               (root / "made" / "deep").string(),
                                               (root / "new.txt").string(),
                                               (root / "sub" / "b.txt").string()}));

  snapshot.restore(changed);
  EXPECT_EQ(readFile(root / "a.txt"), "one");
  EXPECT_EQ(readFile(root / "sub" / "b.txt"), "two");
  EXPECT_FALSE(std::filesystem::exists(root / "new.txt"));
  EXPECT_FALSE(std::filesystem::exists(root / "made"));
  EXPECT_TRUE(snapshot.changes().empty());
}

}  // namespace
