#include "core/date_names.h"

#include <gtest/gtest.h>

#include "tests/support/test_files.h"
#include "tests/support/translation_table.h"

namespace lad {
namespace {

TEST(DateNames, NamesByNumberWithTheLastForAnyOther) {
  const Translator russian;
  const std::pair<int, const char*> shortNames[] = {{1, "вс"}, {2, "пн"}, {7, "сб"}, {0, "сб"}};
  for (const auto& [day, name] : shortNames) EXPECT_EQ(weekday(day, russian), name) << day;
  const std::pair<int, const char*> fullNames[] = {
      {1, "воскресенье"}, {4, "среда"}, {6, "пятница"}, {8, "суббота"}};
  for (const auto& [day, name] : fullNames) EXPECT_EQ(weekdayfull(day, russian), name) << day;
  const std::pair<int, const char*> months[] = {{1, "январь"},   {5, "май"},     {11, "ноябрь"},
                                                {12, "декабрь"}, {0, "декабрь"}, {13, "декабрь"}};
  for (const auto& [month, name] : months) EXPECT_EQ(monthName(month, russian), name) << month;
}

TEST(DateNames, PassThroughTheTranslation) {
  testing::TempDir dir;
  const Translator german = testing::germanTranslator(
      dir.path() / "translate", {{"пн", "Mo"}, {"среда", "Mittwoch"}, {"май", "Mai"}});
  EXPECT_EQ(weekday(2, german), "Mo");
  EXPECT_EQ(weekdayfull(4, german), "Mittwoch");
  EXPECT_EQ(monthName(5, german), "Mai");
  EXPECT_EQ(monthName(6, german), "июнь");  // no translation: shown in Russian
}

}  // namespace
}  // namespace lad
