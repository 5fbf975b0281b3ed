#include "core/date_names.h"

#include <gtest/gtest.h>

#include "tests/support/test_files.h"
#include "tests/support/translation_table.h"

namespace lad {
namespace {

TEST(DateNames, NamesByNumberWithTheLastForAnyOther) {
  const Translator russian;
  const char* const shortNames[] = {"сб", "вс", "пн", "вт", "ср", "чт", "пт", "сб", "сб"};
  const char* const fullNames[] = {"суббота", "воскресенье", "понедельник", "вторник", "среда",
                                   "четверг", "пятница",     "суббота",     "суббота"};
  for (int day = 0; day <= 8; ++day) {
    EXPECT_EQ(weekday(day, russian), shortNames[day]) << day;
    EXPECT_EQ(weekdayfull(day, russian), fullNames[day]) << day;
  }
  const char* const months[] = {"декабрь", "январь", "февраль", "март",   "апрель",
                                "май",     "июнь",   "июль",    "август", "сентябрь",
                                "октябрь", "ноябрь", "декабрь", "декабрь"};
  for (int month = 0; month <= 13; ++month) EXPECT_EQ(monthName(month, russian), months[month]);
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
