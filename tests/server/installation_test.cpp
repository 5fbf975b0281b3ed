#include "server/installation.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <stdexcept>

#include "server_fixture.h"

namespace lad::server::test {
namespace {

TEST(InstallationTest, ShutdownWritesTheSettingsFileAndCanBeRepeated) {
  TempDir root;
  const auto dataDir = root.path() / "data";
  const auto file = settingsFileOf(dataDir);
  Installation installation(greetedInstallation(dataDir));
  // A change that nothing has written yet.
  installation.withContext([](Context& c) { c.settings().set("probe", 7); });
  ASSERT_TRUE(std::filesystem::remove(file));

  installation.shutdown();
  auto settings = settingsOnDisk(dataDir);
  ASSERT_TRUE(settings) << readFile(file);
  ASSERT_TRUE(settings->find("probe"));
  EXPECT_EQ(settings->find("probe")->intValue(), 7);
  ASSERT_TRUE(settings->find("appguid"));
  EXPECT_FALSE(settings->find("appguid")->text().empty());

  installation.shutdown();
  EXPECT_EQ(settingsOnDisk(dataDir), settings);
  EXPECT_THROW(installation.view(""), std::runtime_error);
}

}  // namespace
}  // namespace lad::server::test
