#include "store/day_periods.h"

#include <gtest/gtest.h>

#include "store/day_loader.h"
#include "store/setup_data.h"
#include "tests/store/day_fixture.h"

namespace lad {
namespace {

class DayPeriodsTest : public testing::DayTest {};

TEST_F(DayPeriodsTest, APregnancyListRunsTo294DaysAndKeepsOnlyPhotoDaysBetweenRecords) {
  openEdition(1);
  const Date first = day(1, 3, 2026);  // crosses the change to summer time on 29 March
  const auto at = [&](int k) { return context->dates().addDays(first, k); };
  testing::addPregnancy(*store, kGid, first, "60", at(250), R"({"ves":"3.1"})");
  for (int k : {0, 10, 294, 295}) put("note", "запись " + std::to_string(k), at(k));
  put("note", "до начала", at(-1));
  testing::addPhoto(*context, at(5), kGid);
  testing::addPhoto(*context, at(200), kGid);

  const List list = load(1, 0, first);
  EXPECT_EQ(datesOf(list), "2026-03-01 2026-03-06 2026-03-11 2026-09-17 2026-12-20")
      << "photo days stay, the day of birth between records does not, day 295 is past the end";
  EXPECT_TRUE((*find(list, "2026-03-06"))["isphoto"].boolValue());

  const List all = load(5, 0, first);
  ASSERT_EQ(all.size(), 295u) << "294 filled days and the record of day 294";
  EXPECT_EQ(dateText(all[29]), "2026-03-30") << "calendar days across the clock change";
  EXPECT_EQ(all[29]["istoday"].boolValue(), true);
}

TEST_F(DayPeriodsTest, ABirthdayWithoutRecordsStaysBehindTheLastRecord) {
  openEdition(1);
  const Date first = day(1, 3, 2026);
  testing::addPregnancy(*store, kGid, first, "60", day(20, 3, 2026), R"({"ves":"3.1"})");
  put("note", "запись", day(2, 3, 2026));
  const List list = load(1, 0, first);
  EXPECT_EQ(datesOf(list), "2026-03-02 2026-03-20");
  EXPECT_TRUE((*find(list, "2026-03-20"))["isbirthdate"].boolValue());
  EXPECT_EQ((*find(list, "2026-03-20"))["birthresult"].text(), R"({"ves":"3.1"})");
}

TEST_F(DayPeriodsTest, AChildBornOn29FebruaryHasYearsFrom1MarchTo1March) {
  openEdition(2);
  testing::addChild(*store, kGid, day(29, 2, 2024), "3.2", "50");
  const Map setup = loadSetupData(*store, std::string(kGid));
  struct Case {
    int year;
    const char* birthday;
  } const cases[] = {{1, "2024-02-29"}, {2, "2025-03-01"}, {3, "2026-03-01"}, {5, "2028-02-29"}};
  for (const Case& c : cases)
    EXPECT_EQ(context->dates().dateToString(birthdayOfYear(*context, setup, c.year), "yyyy-MM-dd"),
              c.birthday)
        << c.year;

  for (const char* d : {"2025-02-28", "2025-03-01", "2026-02-28", "2026-03-01"})
    put("note", d, *context->dates().dateFromString(d));
  EXPECT_EQ(datesOf(load(1, 2, {})), "2025-03-01 2026-02-28");
  const List all = load(5, 2, {});
  ASSERT_EQ(all.size(), 365u);
  EXPECT_EQ(dateText(all.back()), "2026-02-28");
  EXPECT_EQ(all.front()["year"].intValue(), 1);

  EXPECT_EQ(datesOf(load(3, 0, {})), "") << "the weight table finds no weights";
  put("ves", "9.5", day(1, 3, 2025));
  put("ves", "3.5", day(1, 3, 2024));
  EXPECT_EQ(datesOf(load(3, 0, {})), "2024-03-01 2025-03-01") << "all years below 1";
  EXPECT_EQ(datesOf(load(3, 2, {})), "2025-03-01") << "one year of age";
  put("rost", "52", day(2, 3, 2024));
  EXPECT_EQ(datesOf(load(4, 0, {})), "2024-03-02") << "the height table holds heights only";
}

TEST_F(DayPeriodsTest, TheWomansYearIsTheCalendarYearAndHerMonthLoadsEachTemperature) {
  openEdition(3);
  for (const char* d : {"2024-12-31", "2025-01-01", "2025-12-31", "2026-01-01"})
    put("note", d, *context->dates().dateFromString(d));
  testing::addPhoto(*context, day(15, 6, 2025), kGid);
  EXPECT_EQ(datesOf(load(1, 2025, {})), "2025-01-01 2025-06-15 2025-12-31");
  EXPECT_EQ(load(4, 2025, {}).size(), 365u);

  for (const char* d : {"2025-12-14", "2025-12-15", "2025-12-31", "2026-01-01"})
    put("ves", "55", *context->dates().dateFromString(d));
  EXPECT_EQ(datesOf(load(5, 0, day(15, 12, 2025))), "2025-12-15 2025-12-31")
      << "from the day to the first of the next month, across the new year";

  put("temp", "08:15<td>36.6<tr>21:40<td>37.1", day(3, 2, 2025));
  put("temp", R"([{"time":"07:05","temp":"36.4"}])", day(28, 2, 2025));
  put("temp", "09:00<td>36.9", day(1, 3, 2025));
  const List temps = load(6, 0, day(3, 2, 2025));
  std::string read;
  for (const Value& t : temps)
    read += context->dates().dateToString(*t["dat"].asDate(), "dd.MM.yyyy HH:mm ") +
            t["temp"].text() + " " + t["pos"].text() + "; ";
  EXPECT_EQ(read, "03.02.2025 08:15 36.6 0; 03.02.2025 21:40 37.1 1; 28.02.2025 07:05 36.4 0; ")
      << "February only, one entry per measurement";
}

TEST_F(DayPeriodsTest, WithoutADatabaseTheListIsEmptyAndTheOneDayRegimStillGivesItsDay) {
  openEdition(1);
  testing::addPregnancy(*store, kGid, day(1, 3, 2026), "60");
  put("note", "запись", day(2, 3, 2026));
  std::filesystem::remove(store->liveFile());
  std::filesystem::create_directory(store->liveFile());  // a folder in its place cannot be opened
  EXPECT_TRUE(load(1, 0, day(1, 3, 2026)).empty());
  EXPECT_TRUE(load(5, 0, day(1, 3, 2026)).empty());
  const List one = load(2, 0, day(2, 3, 2026));
  ASSERT_EQ(one.size(), 1u);
  EXPECT_EQ(dateText(one[0]), "2026-03-02");
  EXPECT_FALSE(one[0].asMap()->contains("note"));
}

TEST_F(DayPeriodsTest, TheCountsRegimCountsRecordsPerDay) {
  openEdition(1);
  const Date first = day(1, 3, 2026);
  testing::addPregnancy(*store, kGid, first, "60");
  put("analizy", "[]", day(2, 3, 2026));
  put("ves", "61", day(2, 3, 2026));
  put("note", "a", day(2, 3, 2026));
  put("doctor", "b", day(2, 3, 2026));
  put("bolezn", recovery, day(2, 3, 2026));
  put("ves", "0", day(3, 3, 2026));
  put("bolezn", "ANOTHER", day(3, 3, 2026));
  // Per day: tests, weighings (a weight of 0 is none), all other records, and whether an illness
  // other than the recovery began.
  std::string counted;
  for (const Value& c : load(9, 0, first)) {
    for (const char* kind : {"analizy", "ves", "note", "bolezn2"})
      counted += std::to_string(c[kind].intValue()) + " ";
  }
  EXPECT_EQ(counted, "1 1 3 0 0 0 1 1 ");
}

}  // namespace
}  // namespace lad
