#include "core/launch.h"

#include <gtest/gtest.h>

#include <regex>

#include "tests/support/test_files.h"

namespace lad {
namespace {

class LaunchTest : public ::testing::Test {
 protected:
  // A fresh Context over the same folder is the next launch of the installation.
  std::unique_ptr<Context> launchOnce(int appid = 1, int langid = 1) {
    auto clock = std::make_shared<ManualClock>(*dateFromIso("2026-11-23T09:00:00Z"), "UTC");
    auto c =
        std::make_unique<Context>(ContextOptions{appid, langid, dir.path(), "2.4.1", clock, {}});
    launch(*c);
    return c;
  }
  SettingsStore storedSettings() const {
    return SettingsStore(dir.path() / "Library" / "Preferences.json");
  }

  lad::testing::TempDir dir;
};

TEST_F(LaunchTest, FirstLaunchWritesItsDefaultsAndIdentityOnce) {
  std::string guid;
  {
    auto c = launchOnce();
    const ProcessValues& v = c->values();
    EXPECT_TRUE(v.accStop);
    EXPECT_EQ(v.versionTag, "2-4-1");
    guid = v.appGuid;
    EXPECT_TRUE(std::regex_match(guid, std::regex("[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}")));
  }
  SettingsStore s = storedSettings();
  EXPECT_FALSE(s.contains("accStop"));  // true in memory only
  EXPECT_FALSE(s.contains("icloud"));
  EXPECT_EQ(launchOnce()->values().appGuid, guid);
}

TEST_F(LaunchTest, StoredChoicesAreReadAndDeactivationForgotten) {
  {
    SettingsStore s = storedSettings();
    s.set("accStop", false);
    s.set("pillsAlarm", "1");
    s.set("deactive", Date(std::chrono::milliseconds(1)));
    ASSERT_TRUE(s.synchronize());
  }
  auto c = launchOnce();
  EXPECT_FALSE(c->values().accStop);
  EXPECT_TRUE(c->values().pillsAlarm);
  EXPECT_FALSE(storedSettings().contains("deactive"));
}

// Mode 2 runs as 11 once and is then stored as on; the retired modes 4 and 5 fall back to on.
TEST_F(LaunchTest, StoredCloudModesRunAsTheirCurrentOnes) {
  struct Case {
    int stored, first, next;
  } const cases[] = {{2, 11, 1}, {4, 1, 1}, {5, 1, 1}, {11, 11, 11}};
  for (const Case& c : cases) {
    {
      SettingsStore s = storedSettings();
      s.set("icloud", c.stored);
      ASSERT_TRUE(s.synchronize());
    }
    EXPECT_EQ(launchOnce()->values().cloudMode, c.first) << c.stored;
    EXPECT_EQ(launchOnce()->values().cloudMode, c.next) << c.stored;
  }
}

TEST_F(LaunchTest, UnknownEditionIsRefused) {
  EXPECT_THROW(Context(ContextOptions{5, 1, dir.path(), "1.0", nullptr, {}}),
               std::invalid_argument);
}

}  // namespace
}  // namespace lad
