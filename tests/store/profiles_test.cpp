#include "store/profiles.h"

#include <gtest/gtest.h>

#include "tests/store/store_fixture.h"

namespace lad {
namespace {

class ProfilesTest : public testing::StoreTest {
 protected:
  void SetUp() override {
    openDiary(1);
    execute("delete from preg");
  }
  void addPregnancy(const std::string& guid, const std::string& sdat1, int deleted = 0) {
    execute("insert into preg (pregguid, sdat1, deleted) values ('" + guid + "', '" + sdat1 +
            "', " + std::to_string(deleted) + ")");
  }
  std::optional<std::string> activeOn(int day, int month, int year) {
    return getActivePregnancy(*store, context->dates().encodeDate(day, month, year));
  }
};

TEST_F(ProfilesTest, TheActivePregnancyIsTheOneThatBeganLastBeforeTheDay) {
  EXPECT_EQ(activeOn(1, 1, 2026), std::nullopt);
  addPregnancy("A", "2025-01-10");
  addPregnancy("B", "2026-03-28");  // two days before the change to summer time
  addPregnancy("GONE", "2026-03-20", 1);
  EXPECT_EQ(activeOn(1, 1, 2024), "A") << "before all: the earliest";
  EXPECT_EQ(activeOn(28, 3, 2026), "A") << "on its first day a pregnancy is not yet chosen";
  EXPECT_EQ(activeOn(29, 3, 2026), "B");

  addPregnancy("C", "2026-03-28");
  EXPECT_EQ(activeOn(29, 3, 2026), "C") << "of equal first days the later row wins";
}

TEST_F(ProfilesTest, ProfilesListInDateOrderWithoutTheRemovedOnes) {
  addPregnancy("LATE", "2026-01-05");
  addPregnancy("GONE", "2025-06-01", 1);
  addPregnancy("EARLY", "2025-02-01");
  const List profiles = loadProfils(*store);
  ASSERT_EQ(profiles.size(), 2u);
  EXPECT_EQ(profiles[0]["guid"].text() + profiles[1]["pregguid"].text(), "EARLYLATE");
  EXPECT_EQ(*profiles[1]["sdat1"].asDate(), context->dates().encodeDate(5, 1, 2026));
  EXPECT_TRUE(profileList(*store).empty()) << "only the child edition has that list";
}

TEST_F(ProfilesTest, MealTimesAreSharedByEveryProfile) {
  addPregnancy("A", "2025-01-10");
  addPregnancy("B", "2026-01-10");
  EXPECT_EQ(getObed(*store), "09:00<table>11:00<table>14:00<table>16:00<table>20:00");
  setObed(*store, "07:00<table>10:00<table>13:00<table>17:00<table>19:30");
  EXPECT_EQ(cell("select count(distinct obed) from preg"), "1");
}

}  // namespace
}  // namespace lad
