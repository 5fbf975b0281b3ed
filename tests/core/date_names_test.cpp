#include "core/date_names.h"

#include <gtest/gtest.h>

#include "tests/support/test_files.h"
#include "tests/support/translation_table.h"

namespace lad {
namespace {

// A number out of range takes the last name; names pass through the translation where it has
// them and stay Russian where it does not.
TEST(DateNames, NamesByNumberWithTheLastForAnyOtherInTheLanguageOfTheTranslation) {
  const Translator russian;
  EXPECT_EQ(weekday(1, russian) + weekday(0, russian), "вссб");
  EXPECT_EQ(weekdayfull(8, russian), "суббота");
  for (int month : {0, 13}) EXPECT_EQ(monthName(month, russian), "декабрь") << month;
  testing::TempDir dir;
  const Translator german =
      testing::germanTranslator(dir.path() / "translate", {{"среда", "Mittwoch"}});
  EXPECT_EQ(weekdayfull(4, german), "Mittwoch");
  EXPECT_EQ(monthName(6, german), "июнь");
}

}  // namespace
}  // namespace lad
