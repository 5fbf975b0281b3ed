#include <gmock/gmock.h>

#include <cstdio>
#include <filesystem>

#include "cloud/change_content.h"
#include "cloud/change_folder.h"
#include "cloud/cloud_scan.h"
#include "core/ids.h"
#include "health/child_feeding.h"
#include "store/day_photo.h"
#include "store/setup_data.h"
#include "tests/cloud/installations.h"

namespace lad::cloud {
namespace {

using ::testing::ElementsAre;

class ChangeFilesTest : public testing::CloudTest {
 protected:
  std::string send(testing::Installation& on, ChangeKind kind, std::optional<Date> day) {
    std::string error;
    const auto name = dataToCloud(*on.store, kind, day, gid, &error);
    EXPECT_TRUE(name) << error;
    return name.value_or("");
  }

  const std::string gid = newID();
};

TEST_F(ChangeFilesTest, APregnancyAndADayWithItsPhotoReachTheOtherInstallationOnce) {
  first.makePregnancy(gid);
  const Date day = first.day(30, 3, 2026);
  first.put("ves", "61.5", day, gid);
  ASSERT_TRUE(saveDayPhoto(*first.context, day, gid, picture(320, 200), nullptr));

  EXPECT_EQ(send(first, kChangeProfile, std::nullopt), "CLOUD-1-" + gid + ".dat");
  EXPECT_EQ(send(first, kChangeDay, day), "CLOUD-2-" + gid + "-30-03-2026.dat");
  EXPECT_TRUE(scanCloudFolder(*first.store).applied.empty()) << "its own files";
  // Written within one tick of the file system's clock, the profile still comes first.
  const std::filesystem::path folder = cloudFolderOf(*first.context);
  std::filesystem::last_write_time(
      folder / ("CLOUD-2-" + gid + "-30-03-2026.dat"),
      std::filesystem::last_write_time(folder / ("CLOUD-1-" + gid + ".dat")));

  const ScanReport report = scanCloudFolder(*second.store);
  EXPECT_THAT(report.applied,
              ElementsAre("CLOUD-1-" + gid + ".dat", "CLOUD-2-" + gid + "-30-03-2026.dat"));
  EXPECT_TRUE(report.skipped.empty() && report.notes.empty());
  const Map setup = loadSetupData(*second.store, gid);
  EXPECT_EQ(setup["sdat1"].text(), "2026-02-01");
  EXPECT_EQ(second.valueOn("ves", day, gid), "61.5");

  const DayPhotoFiles sent = dayPhotoFiles(*first.context, day, gid);
  const DayPhotoFiles came = dayPhotoFiles(*second.context, day, gid);
  EXPECT_EQ(testing::readFile(came.full), testing::readFile(sent.full));
  const std::string small = testing::readFile(came.small);
  EXPECT_EQ(
      platform::imageSize({reinterpret_cast<const std::uint8_t*>(small.data()), small.size()}),
      (platform::ImageSize{160, 100}));

  EXPECT_TRUE(scanCloudFolder(*second.store).applied.empty()) << "applied once";

  // With no cloud folder set, change files are written into the temporary folder and never read.
  testing::Installation lone{1, ""};
  std::filesystem::copy(cloud() / ("CLOUD-1-" + gid + ".dat"), lone.context->tempDir());
  EXPECT_EQ(send(lone, kChangeDay, day), "CLOUD-2-" + gid + "-30-03-2026.dat");
  EXPECT_TRUE(
      std::filesystem::exists(lone.context->tempDir() / ("CLOUD-2-" + gid + "-30-03-2026.dat")));
  EXPECT_TRUE(scanCloudFolder(*lone.store).applied.empty());
  EXPECT_FALSE(loadSetupData(*lone.store, gid).contains("sdat1"));
}

TEST_F(ChangeFilesTest, TheLaterOfTwoChangesOfADayWinsOnBothAndAnEmptyDayDeletes) {
  first.makePregnancy(gid);
  const Date day = first.day(30, 3, 2026);
  first.put("ves", "61", day, gid);
  const std::string name = send(first, kChangeDay, day);
  waitPastChangeOf(cloud() / name);
  second.put("ves", "62", day, gid);
  send(second, kChangeDay, day);

  EXPECT_THAT(scanCloudFolder(*first.store).applied, ElementsAre(name));
  EXPECT_TRUE(scanCloudFolder(*second.store).applied.empty());
  EXPECT_EQ(first.valueOn("ves", day, gid), "62");

  // Everything removed from the day travels as an empty day.
  waitPastChangeOf(cloud() / name);
  noteDeleteValue(*second.store, day, std::nullopt, gid);
  send(second, kChangeDay, day);
  EXPECT_THAT(scanCloudFolder(*first.store).applied, ElementsAre(name));
  EXPECT_EQ(first.valueOn("ves", day, gid), "");
}

TEST_F(ChangeFilesTest, AChildsFeedingsOfADayTravelWithTheChild) {
  testing::Installation mother{2, cloud()}, father{2, cloud()};
  const Date day = mother.day(30, 3, 2026);
  Map feeding;
  feeding.set("kodates", "2026-03-30 09:15");
  feeding.set("kotype", 1);
  feeding.set("kovalue", "{\"tp\":1,\"left\":10,\"right\":5}");
  feeding.set("kosum", 15);
  health::saveKormForDate(*mother.store, {Value(feeding)}, day, gid);
  std::string error;
  const auto name = dataToCloud(*mother.store, kChangeFeedings, day, gid, &error);
  ASSERT_EQ(name, "CLOUD-4-" + gid + "-30-03-2026.dat") << error;

  EXPECT_THAT(scanCloudFolder(*father.store).applied, ElementsAre(*name));
  const List came = health::loadKormForDate(*father.store, day, gid);
  ASSERT_EQ(came.size(), 1u);
  EXPECT_EQ(came[0]["kovalue"].text(), feeding["kovalue"].text());
  EXPECT_TRUE(loadSetupData(*father.store, gid).contains("sbirthdate")) << "the child came too";
}

// Python's own reader sees the keys and value types of a day file.
TEST_F(ChangeFilesTest, ADayFileReadsWithAnotherPropertyListReader) {
  first.makePregnancy(gid);
  const Date day = first.day(30, 3, 2026);
  first.put("ves", "61", day, gid);
  ASSERT_TRUE(saveDayPhoto(*first.context, day, gid, picture(40, 30), nullptr));
  const auto file = cloud() / send(first, kChangeDay, day);
  const std::string script =
      "import plistlib,sys\n"
      "r=plistlib.load(open(sys.argv[1],'rb'),fmt=plistlib.FMT_BINARY)\n"
      "t=lambda v:type(v).__name__\n"
      "print(' '.join(k+':'+t(v) for k,v in r.items()))\n"
      "w=[d for d in r['data'] if d['field']=='ves'][0]\n"
      "print(' '.join(k+':'+t(v) for k,v in w.items()), w['source'])\n"
      "print(' '.join(k+':'+t(v) for k,v in r['images'][0].items()), r['images'][0]['names'])\n"
      "print(r['date'], r['gid']==sys.argv[2], r['setup']['active'], len(r['const'])>0)\n";
  testing::writeFile(shared.path() / "read.py", script);
  const std::string command =
      "python3 " + (shared.path() / "read.py").string() + " " + file.string() + " " + gid;
  FILE* pipe = popen(command.c_str(), "r");
  ASSERT_TRUE(pipe);
  std::string out;
  char buffer[512];
  while (fgets(buffer, sizeof buffer, pipe)) out += buffer;
  ASSERT_EQ(pclose(pipe), 0) << out;
  EXPECT_EQ(out,
            "gid:str setup:dict images:list data:list const:list date:str\n"
            "tp:int field:str source:str 61\n"
            "type:str name:str data:bytes names:str 30-03-2026-s.jpg\n"
            "2026-03-30 True True True\n");
}

}  // namespace
}  // namespace lad::cloud
