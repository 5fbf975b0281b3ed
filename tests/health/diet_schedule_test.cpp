#include "health/diet_schedule.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "content/resource.h"
#include "tests/health/schedule_fixture.h"

namespace lad::health {
namespace {

using lad::testing::kScheduleGid;

class DietScheduleTest : public lad::testing::ScheduleTest {
 protected:
  void SetUp() override { launchEdition(3); }

  std::string menu(int d, int group) const {
    const std::string file = "w-dieta" + std::to_string(d / 10) + "-u";
    return content::extractGroupText(content::fileToString(content(), file), group);
  }
};

TEST_F(DietScheduleTest, MenuGroupsFollowEachDietsCalendar) {
  struct Case {
    int d, r, w, n, group;
  };
  for (const Case& c : {Case{31, 1, 2, 1, 3111}, Case{31, 1, 2, 9, 3121}, Case{31, 1, 2, 20, 3131},
                        Case{31, 1, 2, 22, 0}, Case{41, 1, 2, 1, 4111}, Case{41, 2, 2, 7, 4172},
                        Case{41, 1, 2, 14, 4181}, Case{41, 1, 2, 15, 0}, Case{22, 6, 5, 9, 2286},
                        Case{51, 8, 1, 3, 5188}, Case{61, 1, 2, 3, 6131}, Case{71, 1, 2, 7, 7171},
                        Case{71, 1, 2, 8, 7111}, Case{11, 3, 2, 40, 1123}})
    EXPECT_EQ(dietaGroup(c.d, c.r, c.w, c.n), c.group) << c.d << " r" << c.r << " n" << c.n;

  for (const auto& [d, lastDay] : {std::pair{31, 21}, {41, 14}, {51, 14}, {61, 7}}) {
    EXPECT_TRUE(dietIsLive(d, lastDay)) << d;
    EXPECT_FALSE(dietIsLive(d, lastDay + 1)) << d;
  }
  EXPECT_TRUE(dietIsLive(71, 400));
  EXPECT_FALSE(dietIsLive(0, 1));
  EXPECT_FALSE(dietIsLive(12, 1));

  EXPECT_EQ(dietaEat(*context, 41, 2, day(30), 15), "Перейдите в дневник и завершите диету");
  EXPECT_EQ(dietaEat(*context, 41, 6, day(30), 15), "");
}

TEST_F(DietScheduleTest, ADietShowsItsMenuWhileItRunsAndAsksToBeEndedAfter) {
  const std::string overdue = "00:02 1 |0<tr>Вам следует перейти в дневник и завершить диету!";
  EXPECT_EQ(rows(day(30)),
            (std::vector<std::string>{"00:00 1 |0<tr>В этом дне напоминаний нет",
                                      "00:01 1 |0<tr>Приема лекарств и процедур в этом дне нет",
                                      "00:02 1 |0<tr>Вы не на диете"}))
      << "no doctor's block in the cycle diary";

  put("dieta", "31", day(9));
  EXPECT_EQ(rows(day(30)).back(), overdue) << "day 22 of the English diet";

  put("dieta", "41", day(17));
  // Its last day: each meal's row carries the meal's menu, lunch the second group.
  const auto fourteenth = rows(day(30));
  const std::string lunch = menu(41, 4182);
  ASSERT_FALSE(lunch.empty());
  EXPECT_NE(std::find(fourteenth.begin(), fourteenth.end(), "14:03 2 обед|25<tr>" + lunch),
            fourteenth.end());
  EXPECT_EQ(std::count_if(fourteenth.begin(), fourteenth.end(),
                          [](const std::string& row) { return row.starts_with("00:02"); }),
            0);

  {
    StoreBracket bracket = store->connectToBase();
    deleteValue(*store, bracket, "dieta", day(17), kScheduleGid);
  }
  put("dieta", "41", day(16));
  EXPECT_EQ(rows(day(30)).back(), overdue) << "the day after a diet began counts as its second";

  put("dieta", "1000", day(30));
  EXPECT_EQ(rows(day(30)).back(), "00:02 1 |0<tr>Вы не на диете");
}

}  // namespace
}  // namespace lad::health
