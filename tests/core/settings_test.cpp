#include "core/settings.h"

#include <gtest/gtest.h>

#include <fstream>
#include <thread>

#include "core/atomic_file.h"
#include "tests/support/test_files.h"

namespace lad {
namespace {

using lad::testing::readFile;

class SettingsTest : public ::testing::Test {
 protected:
  lad::testing::TempDir dir;
  std::filesystem::path file = dir.path() / "Library" / "Preferences.json";
};

TEST_F(SettingsTest, TypedValuesSurviveReopeningAndReadWithCoercions) {
  const Date when(std::chrono::milliseconds(1732350000000));
  {
    SettingsStore s(file);
    s.set("flag", true);
    s.set("ratio", 0.75);
    s.set("name", "Маша");
    s.set("when", when);
    Map m;
    m.set("k", "v");
    s.set("map", m);
    ASSERT_TRUE(s.synchronize());
  }
  SettingsStore s(file);
  EXPECT_TRUE(s.loadProblem().empty());
  EXPECT_EQ(s.integerForKey("flag"), 1);  // a stored bool reads as 1
  EXPECT_DOUBLE_EQ(s.doubleForKey("ratio"), 0.75);
  EXPECT_EQ(s.stringForKey("name"), "Маша");
  EXPECT_EQ(s.dateForKey("when"), when);
  EXPECT_FALSE(s.dateForKey("name"));
  EXPECT_EQ(s.get("map")["k"].text(), "v");
  // Absent keys read as the empty value of their type.
  EXPECT_EQ(s.stringForKey("absent"), "");
  s.remove("flag");
  EXPECT_FALSE(s.contains("flag"));
}

TEST_F(SettingsTest, AWriteInterruptedBeforeTheRenameLeavesTheOldFileReadable) {
  {
    SettingsStore s(file);
    s.set("pass", false);
    s.set("name", "old");
    ASSERT_TRUE(s.synchronize());
  }
  // What a crash in the middle of the next write leaves behind: a partial temporary file.
  std::ofstream(atomicTempPath(file)) << "{\"name\": \"ne";
  {
    SettingsStore s(file);
    EXPECT_TRUE(s.loadProblem().empty());
    EXPECT_EQ(s.stringForKey("name"), "old");
    s.set("name", "new");
    ASSERT_TRUE(s.synchronize());
  }
  EXPECT_FALSE(std::filesystem::exists(atomicTempPath(file)));
  EXPECT_EQ(SettingsStore(file).stringForKey("name"), "new");
}

TEST_F(SettingsTest, SynchroniseReplacesTheFileInsteadOfRewritingIt) {
  SettingsStore s(file);
  s.set("v", 1);
  ASSERT_TRUE(s.synchronize());
  // A second name for the old file: rewriting in place would change it as well.
  const auto oldLink = dir.path() / "old.json";
  std::filesystem::create_hard_link(file, oldLink);
  const std::string before = readFile(oldLink);
  s.set("v", 2);
  ASSERT_TRUE(s.synchronize());
  EXPECT_EQ(readFile(oldLink), before);
  EXPECT_EQ(SettingsStore(file).integerForKey("v"), 2);
}

TEST_F(SettingsTest, AnUnreadableFileIsSetAsideNotOverwritten) {
  std::filesystem::create_directories(file.parent_path());
  std::ofstream(file) << "[1, 2";
  SettingsStore s(file);
  EXPECT_NE(s.loadProblem().find("could not be read"), std::string::npos);
  EXPECT_FALSE(s.contains("1"));
  s.set("fresh", true);
  ASSERT_TRUE(s.synchronize());
  int kept = 0;
  for (const auto& e : std::filesystem::directory_iterator(file.parent_path()))
    if (e.path().filename().string().starts_with("Preferences.json.unreadable-")) {
      EXPECT_EQ(readFile(e.path()), "[1, 2");
      ++kept;
    }
  EXPECT_EQ(kept, 1);
}

TEST_F(SettingsTest, AFailedWriteKeepsTheChangesPending) {
  std::ofstream(dir.path() / "blocker") << "a file where a folder should be";
  SettingsStore s(dir.path() / "blocker" / "Preferences.json");
  s.set("kept", 7);
  std::string error;
  EXPECT_FALSE(s.synchronize(&error));
  EXPECT_FALSE(error.empty());
  EXPECT_EQ(s.integerForKey("kept"), 7);
}

TEST_F(SettingsTest, ManyThreadsWritingAndSynchronisingLoseNothing) {
  SettingsStore s(file);
  constexpr int kThreads = 4, kKeys = 150;
  std::vector<std::thread> threads;
  for (int t = 0; t < kThreads; ++t)
    threads.emplace_back([&s, t] {
      for (int k = 0; k < kKeys; ++k) {
        const std::string key = "t" + std::to_string(t) + "k" + std::to_string(k);
        s.set(key, t * 1000 + k);
        EXPECT_EQ(s.integerForKey(key), t * 1000 + k);
        if (k % 10 == 0) {
          EXPECT_TRUE(s.synchronize());
        }
      }
    });
  for (auto& th : threads) th.join();
  ASSERT_TRUE(s.synchronize());
  SettingsStore reread(file);
  for (int t = 0; t < kThreads; ++t)
    for (int k = 0; k < kKeys; ++k)
      ASSERT_EQ(reread.integerForKey("t" + std::to_string(t) + "k" + std::to_string(k)),
                t * 1000 + k);
}

}  // namespace
}  // namespace lad
