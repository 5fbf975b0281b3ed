#include "core/text_fill.h"

#include <gtest/gtest.h>

namespace lad {
namespace {

TEST(TextFill, FillsPlaceholdersInTurn) {
  EXPECT_EQ(fillIn("%d %@ и %d %@", {"2", "недели", "3", "дня"}), "2 недели и 3 дня");
  EXPECT_EQ(fillIn("%1.f%% из %@", {"50", "280"}), "50% из 280");
  EXPECT_EQ(fillIn("%@ и %@", {"один"}), "один и ");
  EXPECT_EQ(fillIn("в конце %", {"x"}), "в конце x");
  EXPECT_EQ(fillIn("ровно %d %@", 21, "неделя"), "ровно 21 неделя");
}

TEST(TextFill, CapitalizesTheFirstLetterOfAnyScript) {
  EXPECT_EQ(capitalizeFirst("идет 1 день 1 недели"), "Идет 1 день 1 недели");
  EXPECT_EQ(capitalizeFirst("ёлка"), "Ёлка");
  EXPECT_EQ(capitalizeFirst(""), "");
  EXPECT_EQ(capitalizeFirst("\xff\xfe"), "\xff\xfe");
}

TEST(TextFill, FixedNumbersIgnoreTheLocaleAndRoundAsPrintfDoes) {
  EXPECT_EQ(formatFixed(-0.5, 1), "-0.5");
  EXPECT_EQ(formatFixed(1.0499999999999998, 3), "1.050");
  EXPECT_EQ(formatFixed(2.0005, 0), "2");
  EXPECT_EQ(formatFixed(1e300, 1).size(), 303u) << "a huge number still fits";
}

}  // namespace
}  // namespace lad
