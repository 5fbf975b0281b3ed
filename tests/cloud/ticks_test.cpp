#include <gmock/gmock.h>

#include "cloud/cloud_scan.h"
#include "cloud/tick_change.h"
#include "store/selections.h"
#include "tests/cloud/installations.h"

namespace lad::cloud {
namespace {

using ::testing::ElementsAre;

class TicksTest : public testing::CloudTest {
 protected:
  static constexpr const char* kGid = "00000000-0000-0000-0001-000000000001";
  static constexpr int kList = 1;

  // A tick made on the first installation as its screens make one, by a clock that is the given
  // hours ahead of the file system's.
  std::string tick(int state, const std::string& tag, int hours = 0) {
    first.clock->set(std::chrono::floor<std::chrono::milliseconds>(
        std::chrono::system_clock::now() + std::chrono::hours(hours)));
    setCheckData(*first.store, kList, tag, state == kTicked, kGid);
    Map extra;
    extra.set("seltypeid", kList);
    std::string error;
    const auto name = keyValueToCloud(*first.context, state, tag, extra, kGid, &error);
    EXPECT_TRUE(name) << error;
    return name.value_or("");
  }
  std::vector<std::string> ticksOn(testing::Installation& on) {
    return loadCheckData(*on.store, kList, kGid);
  }
};

TEST_F(TicksTest, TicksTravelEntryByEntryAndOnlyWhatIsNewerThanTheReceiptIsApplied) {
  const std::string name = tick(kTicked, "TAG-1", -2);
  EXPECT_EQ(name, "CLOUD-3-" + std::string(kGid) + "-" + first.context->values().appGuid + ".dat");
  tick(kTicked, "TAG-2", -1);
  EXPECT_THAT(scanCloudFolder(*second.store).applied, ElementsAre(name));
  EXPECT_THAT(ticksOn(second), ElementsAre("TAG-1", "TAG-2"));
  EXPECT_TRUE(scanCloudFolder(*first.store).applied.empty()) << "its own file";

  // The second takes a tick away; the first's old entries do not bring it back.
  setCheckData(*second.store, kList, "TAG-2", false, kGid);
  waitPastChangeOf(cloud() / name);
  tick(kTicked, "TAG-3", 1);
  tick(kUnticked, "TAG-1", 2);
  EXPECT_THAT(scanCloudFolder(*second.store).applied, ElementsAre(name));
  EXPECT_THAT(ticksOn(second), ElementsAre("TAG-3"));
}

TEST_F(TicksTest, AFileOfTicksThatDoesNotReadIsNeitherReplacedNorApplied) {
  const std::string name = tick(kTicked, "TAG-1");
  testing::writeFile(cloud() / name, "broken");
  std::string error;
  EXPECT_FALSE(keyValueToCloud(*first.context, kTicked, "TAG-2", {}, kGid, &error));
  EXPECT_FALSE(error.empty());
  EXPECT_EQ(testing::readFile(cloud() / name), "broken");

  const ScanReport report = scanCloudFolder(*second.store);
  ASSERT_EQ(report.skipped.size(), 1u);
  EXPECT_EQ(report.skipped[0].reason, "not a binary property list");
  EXPECT_TRUE(ticksOn(second).empty());
}

}  // namespace
}  // namespace lad::cloud
