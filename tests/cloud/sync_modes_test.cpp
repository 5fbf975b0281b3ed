#include <gmock/gmock.h>

#include "cloud/bulk_copy.h"
#include "cloud/change_folder.h"
#include "cloud/cloud_pass.h"
#include "cloud/cloud_writers.h"
#include "core/ids.h"
#include "store/day_photo.h"
#include "store/selections.h"
#include "store/setup_data.h"
#include "tests/cloud/installations.h"

namespace lad::cloud {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

constexpr std::chrono::milliseconds kNoSettle{0};

class SyncModesTest : public testing::CloudTest {
 protected:
  static PassOutcome pass(testing::Installation& on, RefusedFiles* refused = nullptr) {
    return cloudPass(*on.store, {kNoSettle, refused, {}});
  }
  std::vector<std::string> cloudFiles() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(cloud()))
      names.push_back(entry.path().filename().string());
    return names;
  }
  // Makes the file look as if it had been written a minute ago.
  static void age(const std::filesystem::path& file) {
    std::filesystem::last_write_time(
        file, std::filesystem::file_time_type::clock::now() - std::chrono::minutes(1));
  }

  const std::string gid = newID();
};

TEST_F(SyncModesTest, ScreensWriteChangesOnlyInSyncModeAndTheOtherSideAppliesThem) {
  first.makePregnancy(gid);
  const Date day = first.day(30, 3, 2026);
  first.put("ves", "61.5", day, gid);
  cloudDayChanged(*first.store, day, gid);
  cloudProfileChanged(*first.store, gid);
  EXPECT_THAT(cloudFiles(), IsEmpty()) << "the cloud is off";

  chooseCloudSync(*first.context);
  chooseCloudSync(*second.context);
  EXPECT_EQ(first.context->settings().integerForKey("icloud"), kCloudSync);
  cloudProfileChanged(*first.store, gid);
  cloudDayChanged(*first.store, day, gid);
  setCheckData(*first.store, 1, "TAG-1", true, gid);
  cloudTickChanged(*first.store, true, "TAG-1", 1, gid);

  const PassOutcome outcome = pass(second);
  EXPECT_EQ(outcome.report.applied.size(), 3u);
  EXPECT_TRUE(outcome.dataChanged);
  EXPECT_FALSE(second.context->settings().boolForKey("cloudall")) << "the owed full pass ran";
  EXPECT_EQ(second.valueOn("ves", day, gid), "61.5");
  EXPECT_THAT(loadCheckData(*second.store, 1, gid), ElementsAre("TAG-1"));
  EXPECT_FALSE(pass(second).dataChanged) << "nothing new";
}

TEST_F(SyncModesTest, TheBulkCopyLeavesOnlyThisDiaryAndAnEmptyInstallationReadsItWhole) {
  first.makePregnancy(gid);
  const Date weighed = first.day(30, 3, 2026), pictured = first.day(2, 4, 2026);
  first.put("ves", "61.5", weighed, gid);
  first.put("note", "УЗИ", first.day(1, 4, 2026), gid);
  ASSERT_TRUE(saveDayPhoto(*first.context, pictured, gid, picture(64, 48), nullptr));
  // What the folder held before: a unit of a diary that is no more, a file of the old format,
  // and files that are not the program's.
  const std::string stale = "CLOUD-2-" + newID() + "-01-01-2025.dat";
  for (const char* name : {"a-12-1.pdf", "notes.txt"}) testing::writeFile(cloud() / name, "x");
  testing::writeFile(cloud() / stale, "x");
  std::filesystem::create_directories(cloud() / ".sync");
  testing::writeFile(cloud() / ".sync" / "state", "x");

  BulkCopy copy(*first.store);
  EXPECT_EQ(copy.unitCount(), 5u)
      << "the launch's profile and hers, two days with records, one with a photo only";
  for (int steps = 0; copy.step(1); ++steps) ASSERT_LT(steps, 10) << "the copy never ends";
  EXPECT_THAT(copy.errors(), IsEmpty());
  EXPECT_THAT(cloudFiles(),
              UnorderedElementsAre("CLOUD-1-" + newID2(1, 1) + ".dat", "CLOUD-1-" + gid + ".dat",
                                   "CLOUD-2-" + gid + "-30-03-2026.dat",
                                   "CLOUD-2-" + gid + "-01-04-2026.dat",
                                   "CLOUD-2-" + gid + "-02-04-2026.dat", "notes.txt", ".sync"));

  testing::Installation third{1, cloud()};
  chooseCloudSync(*third.context);
  EXPECT_EQ(pass(third).report.applied.size(), 5u);
  EXPECT_EQ(third.valueOn("ves", weighed, gid), "61.5");
  EXPECT_TRUE(std::filesystem::exists(dayPhotoFiles(*third.context, pictured, gid).small));
}

TEST_F(SyncModesTest, TheListingCountsCompleteFilesAndHidesWhatSyncToolsAreWriting) {
  const std::string done = "CLOUD-1-" + newID() + ".dat";
  testing::writeFile(cloud() / done, "x");
  age(cloud() / done);
  testing::writeFile(cloud() / ("CLOUD-1-" + newID() + ".dat"), "being written");
  for (const char* folder : {"old", ".versions"})
    std::filesystem::create_directories(cloud() / folder);
  testing::writeFile(cloud() / "old" / "child12.jpg", "x");
  age(cloud() / "old" / "child12.jpg");
  for (const char* hidden : {".CLOUD-1-a.dat.tmp", "CLOUD-1-b.dat.part", ".versions/CLOUD-1-c.dat"})
    testing::writeFile(cloud() / hidden, "x");

  first.context->values().oldCloudFound = false;
  const CloudListing listing = listCloudFolder(*first.context, std::chrono::seconds(30));
  EXPECT_EQ(listing.total, 3);
  EXPECT_EQ(listing.down, 2);
  ASSERT_EQ(listing.pending.size(), 1u);
  EXPECT_EQ(listing.pending[0].name, done);
  EXPECT_THAT(listing.oldFormat, ElementsAre(cloud() / "old" / "child12.jpg"));
  EXPECT_TRUE(first.context->values().oldCloudFound);
  EXPECT_EQ(listCloudFolder(*first.context, kNoSettle).down, 3);
}

TEST_F(SyncModesTest, TheImportOfTheOldFormatEndsInSyncModeOnceTheFolderIsComplete) {
  first.makePregnancy(gid);
  chooseCloudSync(*first.context);
  cloudProfileChanged(*first.store, gid);
  testing::writeFile(cloud() / "child12.jpg", "portrait");

  second.context->values().cloudMode = kCloudImport;
  testing::writeFile(cloud() / "d-3-1.jpg", "arriving");
  const PassOutcome waiting = cloudPass(*second.store, {std::chrono::seconds(30), nullptr, {}});
  EXPECT_EQ(second.context->values().cloudMode, kCloudImport) << "not all files are complete";
  EXPECT_THAT(waiting.report.applied, IsEmpty());

  const PassOutcome done = pass(second);
  EXPECT_EQ(second.context->values().cloudMode, kCloudSync);
  EXPECT_EQ(second.context->settings().integerForKey("icloud"), kCloudSync);
  EXPECT_THAT(done.report.applied, ElementsAre("CLOUD-1-" + gid + ".dat"));
  const auto documents = second.context->documentsDir();
  EXPECT_EQ(testing::readFile(documents / "picture" / ("child-" + newID2(1, 12) + ".jpg")),
            "portrait");
  EXPECT_EQ(testing::readFile(documents / "documents" / "d-3-1.jpg"), "arriving");
  EXPECT_EQ(done.notices.size(), 2u) << "the import is over; old data is in the folder";
  EXPECT_THAT(pass(second).notices, IsEmpty()) << "each notice once";
}

TEST_F(SyncModesTest, ARefusedFileIsTriedAgainOnlyOnceItHasChanged) {
  chooseCloudSync(*second.context);
  const std::string name = "CLOUD-1-" + gid + ".dat";
  testing::writeFile(cloud() / name, "cut sho");
  RefusedFiles refused;
  EXPECT_EQ(pass(second, &refused).report.skipped.size(), 1u);
  EXPECT_THAT(pass(second, &refused).report.skipped, IsEmpty()) << "unchanged, not tried";

  waitPastChangeOf(cloud() / name);
  first.makePregnancy(gid);
  chooseCloudSync(*first.context);
  cloudProfileChanged(*first.store, gid);
  EXPECT_THAT(pass(second, &refused).report.applied, ElementsAre(name));
  EXPECT_THAT(refused, IsEmpty());
}

}  // namespace
}  // namespace lad::cloud
