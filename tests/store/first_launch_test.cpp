#include "store/first_launch.h"

#include <gtest/gtest.h>

#include "tests/store/store_fixture.h"

namespace lad {
namespace {

using namespace std::chrono_literals;

class FirstLaunchTest : public testing::StoreTest {};

TEST_F(FirstLaunchTest, ANewPregnancyDiaryStartsTodayAndGreetsAsANewInstallation) {
  openDiary(1);
  EXPECT_TRUE(context->settings().boolForKey("FirstStart"));
  EXPECT_EQ(cell("select sdat1||' '||sdat2||' '||sbirthdate||' '||dat1||' '||startuse from preg "
                 "where pregid=1"),
            "2026-03-30 2026-04-12 2027-01-04 1774857600 2026-03-30");

  // A later launch keeps the first day of use and the dates the user may since have changed.
  context->settings().set("FirstStart", false);
  context->settings().synchronize();
  execute("update preg set sdat1='2026-02-01' where pregid=1");
  clock->advance(72h);
  openDiary(1);
  EXPECT_EQ(context->values().startUse, "2026-03-30");
  EXPECT_EQ(cell("select sdat1 from preg where pregid=1"), "2026-02-01");
  EXPECT_TRUE(context->settings().boolForKey("FirstStart"))
      << "without the old setting Date every launch counts as a first start";
}

TEST_F(FirstLaunchTest, AChildIsBornTodayOnlyInANewFile) {
  openDiary(2);
  EXPECT_TRUE(context->settings().boolForKey("FirstStart"));
  EXPECT_EQ(cell("select sbirthdate||' '||birthday from child where chid=1"),
            "2026-03-30 1774857600");

  context->settings().set("FirstStart", false);
  context->settings().synchronize();
  clock->advance(24h);
  openDiary(2);
  EXPECT_FALSE(context->settings().boolForKey("FirstStart"));
  EXPECT_EQ(cell("select sbirthdate from child where chid=1"), "2026-03-30");
}

TEST_F(FirstLaunchTest, AnUnreadableDatabaseStaysAsItIsAndTheDiaryIsEmpty) {
  open(1);
  std::filesystem::create_directories(reserv());
  testing::writeFile(store->liveFile(), "not a database at all");
  fromOldVersion(*store);
  EXPECT_EQ(testing::readFile(store->liveFile()), "not a database at all");
  EXPECT_EQ(context->values().startUse, "2026-03-30");
}

}  // namespace
}  // namespace lad
