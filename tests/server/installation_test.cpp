#include "server/installation.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <stdexcept>

#include "server_fixture.h"

namespace lad::server::test {
namespace {

ContextOptions optionsFor(const std::filesystem::path& dataDir) {
  return greetedInstallation(dataDir);
}

TEST(InstallationTest, ShutdownWritesTheSettingsFileAndCanBeRepeated) {
  TempDir root;
  const auto dataDir = root.path() / "data";
  const auto file = settingsFileOf(dataDir);
  Installation installation(optionsFor(dataDir));
  // A change that nothing has written yet.
  installation.withContext([](Context& c) { c.settings().set("probe", 7); });
  ASSERT_TRUE(std::filesystem::remove(file));

  installation.shutdown();
  ASSERT_TRUE(std::filesystem::exists(file));
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

TEST(InstallationTest, EventsChangeSettingsThatOutliveTheInstallation) {
  TempDir root;
  const auto dataDir = root.path() / "data";
  std::string appguid;
  {
    Installation installation(optionsFor(dataDir));
    Reply reply = installation.event("", R"({"type":"tap","target":"menu:51"})");
    EXPECT_EQ(reply.status, 200) << reply.body;
    EXPECT_TRUE(reply.newSession);
    EXPECT_FALSE(reply.session.empty());
    // The same session is found again by its id.
    Reply again = installation.view(reply.session);
    EXPECT_FALSE(again.newSession);
    EXPECT_EQ(again.session, reply.session);
    appguid =
        installation.withContext([](Context& c) { return c.settings().stringForKey("appguid"); });
    ASSERT_FALSE(appguid.empty());
  }
  Installation reopened(optionsFor(dataDir));
  Reply view = reopened.view("");
  ASSERT_EQ(view.status, 200);
  Json row = rowOf(Json::parse(view.body), "menu:51");
  ASSERT_TRUE(row.is_object()) << view.body;
  EXPECT_EQ(row["checked"], true);
  EXPECT_EQ(reopened.withContext([](Context& c) { return c.settings().stringForKey("appguid"); }),
            appguid);
}

}  // namespace
}  // namespace lad::server::test
