#include "drawing/text_measure.h"

#include <gtest/gtest.h>

namespace lad::draw {
namespace {

TEST(TextMeasure, SizeFollowsTextFontAndWidth) {
  const Size two = measureText("22", {9, false});
  const Size four = measureText("2222", {9, false});
  EXPECT_GT(two.w, 0);
  EXPECT_GT(two.h, 0);
  EXPECT_NEAR(four.w, 2 * two.w, 1);
  EXPECT_EQ(four.h, two.h);

  const Size big = measureText("22", {18, false});
  EXPECT_NEAR(big.w, 2 * two.w, 1);
  EXPECT_GT(measureText("22", {9, true}).w, two.w);

  // A line break and a narrow width both add lines.
  EXPECT_NEAR(measureText("22\n22", {9, false}).h, 2 * two.h, 1);
  const Size wrapped = measureText("двадцать два двадцать два", {9, false}, four.w * 2);
  EXPECT_LE(wrapped.w, four.w * 2);
  EXPECT_GT(wrapped.h, two.h * 1.5);
}

}  // namespace
}  // namespace lad::draw
