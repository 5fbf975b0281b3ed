// The sync command as a person runs it: a stopped installation takes in what another one wrote.
#include <gmock/gmock.h>

#include "cloud/cloud_pass.h"
#include "cloud/cloud_writers.h"
#include "shell/application.h"
#include "store/records.h"
#include "store/setup_data.h"
#include "tests/app/program_run.h"
#include "tests/support/test_files.h"

namespace lad::app {
namespace {

using ::testing::HasSubstr;

constexpr const char* kGid = "5A1E0C3B-0000-4000-8000-000000000001";

// A pregnancy with a weighed day, written into the cloud folder as its screens write it; the
// files then look settled, as a sync tool would leave them after a while.
void writeDiary(const std::filesystem::path& data, const std::filesystem::path& cloud) {
  shell::Application app(ContextOptions{1, 1, data, "", nullptr, LADANEYA_RESOURCES_DIR});
  app.context().settings().set("cloudFolder", cloud.string());
  chooseCloudSync(app.context());
  Map setup;
  setup.set("sdat1", "2026-02-01");
  setup.set("active", true);
  saveSetupData(app.store(), kSetupWhole, setup, kGid);
  const Date day = app.context().dates().encodeDate(30, 3, 2026);
  {
    StoreBracket bracket = app.store().connectToBase();
    insertValue(app.store(), bracket, "ves", "61.5", day, kGid, true, false);
  }
  cloudProfileChanged(app.store(), kGid);
  cloudDayChanged(app.store(), day, kGid);
  for (const auto& file : std::filesystem::directory_iterator(cloud))
    std::filesystem::last_write_time(
        file.path(), std::filesystem::file_time_type::clock::now() - std::chrono::minutes(1));
}

TEST(SyncCommand, AStoppedInstallationTakesInTheFolderOnceAndKeepsTheFolderForLater) {
  testing::TempDir dir;
  const auto cloud = dir.path() / "cloud", data = dir.path() / "laptop";
  std::filesystem::create_directories(cloud);
  writeDiary(dir.path() / "home", cloud);

  testing::ProgramRun r = testing::runProgram("sync", "--data " + data.string());
  EXPECT_EQ(r.status, 2) << r.output;
  EXPECT_THAT(r.output, HasSubstr("give --cloud DIR"));

  r = testing::runProgram("sync", "--data " + data.string() + " --cloud " + cloud.string());
  EXPECT_EQ(r.status, 0) << r.output;
  EXPECT_THAT(r.output, HasSubstr("2 change files applied; the folder is 100% complete"));
  r = testing::runProgram("sync", "--data " + data.string());
  EXPECT_THAT(r.output, HasSubstr("0 change files applied")) << "the folder was kept";

  shell::Application laptop(ContextOptions{1, 1, data, "", nullptr, LADANEYA_RESOURCES_DIR});
  StoreBracket bracket = laptop.store().connectToBase();
  EXPECT_EQ(getDateValue(laptop.store(), bracket, laptop.context().dates().encodeDate(30, 3, 2026),
                         "ves", kGid),
            "61.5");
}

}  // namespace
}  // namespace lad::app
