#include "store/day_strings.h"

#include <gtest/gtest.h>

#include "store/setup_data.h"
#include "tests/store/day_fixture.h"

namespace lad {
namespace {

class DayStringsTest : public testing::DayTest {
 protected:
  // Each day's flag as "1" or "0", and "r" for the illness colour, in list order.
  std::string marks(const List& days, const char* flag) const {
    std::string text;
    for (const Value& d : days) {
      text += d[flag].boolValue() ? "1" : "0";
      if (d["color"] == illnessDayColor()) text += "r";
    }
    return text;
  }
};

TEST_F(DayStringsTest, AnIllnessCarriesIntoThePeriodAndColoursDaysUpToToday) {
  openEdition(1);
  const Date first = day(1, 3, 2026);
  testing::addPregnancy(*store, kGid, first, "60");
  put("bolezn", "FLU", day(25, 2, 2026));
  put("bolezn", recovery, day(5, 3, 2026));
  put("bolezn", "COLD", day(20, 3, 2026));
  const List all = load(5, 0, first);
  ASSERT_GE(all.size(), 33u);
  const List march(all.begin(), all.begin() + 33);  // 1 March to 2 April; today is 30 March
  EXPECT_EQ(marks(march, "isbolezn"),
            "1r1r1r1r1"               // from the day before: 1 to 5
            "00000000000000"          // 6 to 19
            "1r1r1r1r1r1r1r1r1r1r1r"  // 20 to 30
            "111");                   // 31 March to 2 April, later than today
  EXPECT_EQ(all[4]["color"], plainDayColor()) << "the day of recovery is marked, not coloured";
}

TEST_F(DayStringsTest, ADietRunsFromItsNumberToTheValue1000) {
  openEdition(3);
  put("dieta", "2", day(20, 12, 2024));
  put("dieta", "1000", day(3, 1, 2025));
  put("dieta", "3", day(6, 1, 2025));
  put("dieta", "0", day(8, 1, 2025));
  put("dieta", "1000", day(10, 1, 2025));
  put("bolezn", "FLU", day(1, 1, 2025));
  const List all = load(4, 2025, {});
  const List first12(all.begin(), all.begin() + 12);
  EXPECT_EQ(marks(first12, "isdieta"), "111001111100")
      << "carried in, ended on the 3rd (marked), again from the 6th; 0 changes nothing";
  EXPECT_EQ(marks(first12, "isbolezn"), "111111111111") << "the woman's days are never red";
}

TEST_F(DayStringsTest, WeightsShowTheirDifferenceFromTheBaseOfTheList) {
  openEdition(1);
  const Date first = day(1, 3, 2026);
  testing::addPregnancy(*store, kGid, first, "60");
  put("ves", "61.5", day(2, 3, 2026));
  put("ves", "59.5", day(3, 3, 2026));
  put("ves", "60", day(4, 3, 2026));
  const auto weights = [&](const List& days) {
    std::string text;
    for (const Value& d : days)
      if (d.asMap()->contains("ves")) text += d["ves"].text() + "; ";
    return text;
  };
  EXPECT_EQ(weights(load(5, 0, first)), "61.5 (+1.5); 59.5 (-0.5); 60.0; ");
  EXPECT_EQ(weights(load(3, 0, first)), "61.50; 59.50; 60.00; ") << "the weight table";

  openEdition(2);
  testing::addChild(*store, kGid, day(1, 3, 2025), "3.2", "50");
  put("ves", "4.25", day(1, 4, 2025));
  put("rost", "55", day(1, 4, 2025));
  put("ves", "9.5", day(2, 3, 2026));
  put("ves", "10", day(3, 3, 2026));
  const List year1 = load(5, 1, {});
  const Value* april = find(year1, "2025-04-01");
  EXPECT_EQ((*april)["ves"].text(), "4.250 (+1.050)") << "against the birth weight";
  EXPECT_EQ((*april)["rost"].text(), "55.0 (+5.0)");
  EXPECT_EQ(weights(load(5, 2, {})), "9.500; 10.000 (+0.500); ")
      << "a later year takes its first weighing as the base";
}

}  // namespace
}  // namespace lad
