#include "drawing/svg_writer.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

namespace lad::drawing::svg {
namespace {

std::string number(double v) {
  std::string out;
  appendNumber(out, v);
  return out;
}

TEST(SvgWriter, NumbersAreShortAndAlwaysValid) {
  EXPECT_EQ(number(2.5), "2.5");
  EXPECT_EQ(number(1.23456), "1.235");
  EXPECT_EQ(number(-0.0001), "0");
  EXPECT_EQ(number(1e300), "1000000000");
  EXPECT_EQ(number(std::numeric_limits<double>::quiet_NaN()), "0");
  EXPECT_EQ(number(-std::numeric_limits<double>::infinity()), "0");
}

TEST(SvgWriter, TextIsEscapedAndKeepsOnlyCharactersXmlAllows) {
  std::string out;
  appendEscaped(out, "<a href='x'>\"Б\" & \x01\tя\n</a>");
  EXPECT_EQ(out, "&lt;a href=&apos;x&apos;&gt;&quot;Б&quot; &amp; \tя\n&lt;/a&gt;");

  out.clear();
  appendPaint(out, "fill", "fill-opacity", {1, 0.5, 2, 0.25});
  EXPECT_EQ(out, " fill=\"#ff80ff\" fill-opacity=\"0.25\"");
}

TEST(SvgWriter, ArcsGoClockwiseFromTheCurrentPoint) {
  std::string out;
  // A quarter from the right to the bottom, after a line: a line to its start, then the arc.
  appendPathData(out, Path().moveTo({0, 0}).arc({10, 10}, 5, 0, std::numbers::pi / 2));
  EXPECT_EQ(out, "M0 0L15 10A5 5 0 0 1 10 15");

  // An end before the start goes round the other way to reach it; a first arc moves.
  out.clear();
  appendPathData(out, Path().arc({0, 0}, 1, std::numbers::pi / 2, 0));
  EXPECT_EQ(out, "M0 1A1 1 0 0 1 0 -1A1 1 0 0 1 1 0");

  // A negative arc goes counter-clockwise, its end brought before the start.
  out.clear();
  appendPathData(out, Path().arcNegative({0, 0}, 1, 0, std::numbers::pi / 2));
  EXPECT_EQ(out, "M1 0A1 1 0 0 0 -1 0A1 1 0 0 0 0 1");

  // Angles that are not numbers draw no arc and never hang.
  out.clear();
  appendPathData(out, Path().arc({0, 0}, 1, 0, std::numeric_limits<double>::infinity()));
  EXPECT_EQ(out, "M1 0");
}

}  // namespace
}  // namespace lad::drawing::svg
