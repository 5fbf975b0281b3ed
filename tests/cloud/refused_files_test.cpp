#include <gmock/gmock.h>

#include <map>

#include "cloud/change_content.h"
#include "cloud/change_folder.h"
#include "cloud/cloud_scan.h"
#include "cloud/property_list.h"
#include "store/day_photo.h"
#include "store/setup_data.h"
#include "tests/cloud/installations.h"

namespace lad::cloud {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

class RefusedFilesTest : public testing::CloudTest {
 protected:
  static constexpr const char* kGid = "00000000-0000-0000-0001-000000000001";

  // Everything of the diary that a change could touch: its records, its profiles and its files.
  static std::string diary(testing::Installation& on) {
    std::string all;
    SqliteConnection db(on.store->liveFile(), SqliteConnection::Mode::ReadOnly);
    for (const char* sql : {"select type||'='||value||'@'||sdat||pregguid from pregdata",
                            "select pregguid||coalesce(sdat1,'')||deleted from preg"}) {
      SqliteStatement st = db.prepare(sql);
      while (st.step()) all += st.columnText(0).value_or("") + "\n";
    }
    for (const auto& file : std::filesystem::recursive_directory_iterator(on.context->dataDir()))
      if (file.path().extension() == ".jpg") all += file.path().filename().string() + "\n";
    return all;
  }
  void put(const std::string& name, const Bytes& bytes) {
    testing::writeFile(cloud() / name, {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
  }
  // A day file as the first installation writes it, with one key changed.
  Bytes dayWith(const std::string& key, Value value) {
    Map root = dayChange(*first.store, first.day(30, 3, 2026), kGid);
    root.set(key, std::move(value));
    return toPropertyList(Value(root));
  }
};

TEST_F(RefusedFilesTest, BrokenFilesAreSkippedWithAReasonAndTheDiaryStaysAsItWas) {
  const Date day = second.day(30, 3, 2026);
  second.put("ves", "60", day, kGid);
  ASSERT_TRUE(saveDayPhoto(*second.context, day, kGid, picture(20, 20), nullptr));
  first.put("ves", "70", day, kGid);
  const Bytes good = dayWith("gid", kGid);
  Map notADay;
  notADay.set("gid", kGid);
  notADay.set("data", List{Value(1)});
  const std::string before = diary(second);

  put("CLOUD-2-A-30-03-2026.dat", Bytes(good.begin(), good.begin() + good.size() * 2 / 3));
  put("CLOUD-2-B-30-03-2026.dat", Bytes{'h', 'e', 'l', 'l', 'o'});
  put("CLOUD-2-C-30-03-2026.dat", dayWith("data", "61"));
  put("CLOUD-2-D-30-03-2026.dat", dayWith("date", "30-03-2026"));
  put("CLOUD-2-E-30-03-2026.dat", toPropertyList(Value(notADay)));
  put("CLOUD-2-F-30-03-2026.dat", dayWith("images", List{Value(Map{})}));
  put("CLOUD-2-G-30-03-2026.dat", toPropertyList(Value(List{Value(kGid)})));
  Map setup = loadSetupData(*first.store, kGid);
  setup.set("sdat1", List{});
  put("CLOUD-1-J.dat", dayWith("setup", setup));
  // Names of files in progress are not looked at at all.
  put(".CLOUD-2-H-30-03-2026.dat", good);
  put("CLOUD-2-I-30-03-2026.dat.tmp", good);

  const ScanReport report = scanCloudFolder(*second.store);
  EXPECT_TRUE(report.applied.empty());
  const std::map<std::string, std::string> reasons = {{"A", "cut short"},
                                                      {"B", "not a binary property list"},
                                                      {"C", "\"data\" is not a list"},
                                                      {"D", "not a date"},
                                                      {"E", "entry of \"data\""},
                                                      {"F", "entry of \"images\""},
                                                      {"G", "not a dictionary"},
                                                      {"J", "\"sdat1\" in \"setup\""}};
  ASSERT_EQ(report.skipped.size(), reasons.size());
  for (const SkippedChange& skipped : report.skipped) {
    EXPECT_THAT(skipped.reason, HasSubstr(reasons.at(skipped.name.substr(8, 1)))) << skipped.name;
    EXPECT_FALSE(changeReceipt(*second.context, skipped.name)) << "tried again next time";
  }
  EXPECT_EQ(diary(second), before);
}

TEST_F(RefusedFilesTest, APhotoThatIsNoPictureIsNotWrittenAndAPathIsNoName) {
  const Date day = first.day(30, 3, 2026);
  ASSERT_TRUE(saveDayPhoto(*first.context, day, kGid, picture(20, 20), nullptr));
  Map root = dayChange(*first.store, day, kGid);
  Map photo = *(*root["images"].asList())[0].asMap();
  photo.set("data", Bytes{'n', 'o', 't'});
  root.set("images", List{Value(photo)});
  put("CLOUD-2-P-30-03-2026.dat", toPropertyList(Value(root)));
  photo.set("name", "../../escape.jpg");
  put("CLOUD-2-Q-30-03-2026.dat", dayWith("images", List{Value(photo)}));

  const ScanReport report = scanCloudFolder(*second.store);
  EXPECT_THAT(report.applied, ElementsAre("CLOUD-2-P-30-03-2026.dat"));
  EXPECT_THAT(report.notes, ElementsAre(HasSubstr("is not a picture")));
  ASSERT_EQ(report.skipped.size(), 1u);
  EXPECT_THAT(report.skipped[0].reason, HasSubstr("path"));
  EXPECT_FALSE(std::filesystem::exists(dayPhotoFiles(*second.context, day, kGid).full));
  EXPECT_FALSE(std::filesystem::exists(second.context->dataDir() / "escape.jpg"));
}

}  // namespace
}  // namespace lad::cloud
