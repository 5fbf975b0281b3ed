#include "store/day_sections.h"

#include <gtest/gtest.h>

#include "store/setup_data.h"
#include "tests/store/day_fixture.h"

namespace lad {
namespace {

class DaySectionsTest : public testing::DayTest {
 protected:
  Map group(const List& days, List& sections) {
    return prepareGroupData(*context, days, loadSetupData(*store, std::string(kGid)), sections);
  }
  static std::string describe(const Value& section) {
    return section["name"].text() + " " + section["name2"].text() + " " + section["count"].text();
  }
  static std::string place(const Map& p) { return p["section"].text() + ":" + p["row"].text(); }
};

TEST_F(DaySectionsTest, PregnancyWeeksScrollToTheDayBeforeToday) {
  openEdition(1);
  const Date first = day(1, 3, 2026);
  testing::addPregnancy(*store, kGid, first, "60");
  const List days = load(5, 0, first);
  List sections;
  const Map p = group(days, sections);
  ASSERT_EQ(sections.size(), 42u);
  EXPECT_EQ(describe(sections[0]), "1 неделя 01.03-07.03 7");
  EXPECT_EQ(place(p), "4:0") << "today, 30 March, is the second day of week 5";

  clock->set(*dateFromIso("2026-03-29T10:00:00Z"));
  EXPECT_EQ(place(group(days, sections)), "3:6")
      << "on the first day of a week the place is the last day of the week before";
  clock->set(*dateFromIso("2026-02-01T10:00:00Z"));
  EXPECT_EQ(place(group(days, sections)), "-1:-1") << "nothing up to today";
  clock->set(testNow());
  EXPECT_EQ(place(group(List(days.begin(), days.begin() + 1), sections)), "0:-1")
      << "one day up to today";
  EXPECT_EQ(sections.size(), 1u);
}

TEST_F(DaySectionsTest, AChildsMonthsRunFromTheDayOfBirth) {
  openEdition(2);
  testing::addChild(*store, kGid, day(31, 1, 2025), "3.2", "50");
  List sections;
  group(load(5, 1, {}), sections);
  ASSERT_EQ(sections.size(), 12u);
  EXPECT_EQ(describe(sections[0]), "1-й месяц 31.01.25-27.02.25 28");
  EXPECT_EQ(describe(sections[1]), "2-й месяц 28.02.25-30.03.25 31");
}

}  // namespace
}  // namespace lad
