#include "charts/ring_chart.h"

#include <gtest/gtest.h>

#include <cmath>

#include "charts/chart_dictionary.h"
#include "charts/palette.h"
#include "drawing/recording_canvas.h"

namespace lad::charts {
namespace {

using drawing::Command;

List values(std::initializer_list<double> xs) {
  List l;
  for (double x : xs) addPoint(l, x, 0);
  return l;
}

TEST(Palette, SequenceFallsBackOnTheFirstColour) {
  EXPECT_NE(nextColor(7), nextColor(1));
  for (int n : {0, -3}) EXPECT_EQ(nextColor(n), nextColor(1));
  EXPECT_EQ(colorFrom(Value("red")).a, 0);
}

TEST(RingChart, SlicesShadowAndShareLabels) {
  drawing::RecordingCanvas c;
  // 1 and 99: the small slice stays without text.
  drawNewChart(c, values({1, 99}), {0, 0, 220, 120}, 1);
  const auto fills = c.ofKind(Command::Kind::FillPath);
  ASSERT_EQ(fills.size(), 3u);
  EXPECT_EQ(fills[0].rule, drawing::FillRule::EvenOdd);
  // The shadow ring stands 2z right and down, of radius (120 - 20) / 2.
  EXPECT_EQ(fills[0].path.ops()[0].to, (drawing::Point{112, 62}));
  EXPECT_DOUBLE_EQ(fills[0].path.ops()[0].radius, 50);
  EXPECT_EQ(fills[1].color, nextColor(1));
  EXPECT_EQ(fills[2].color, nextColor(2));
  EXPECT_NEAR(fills[1].path.ops()[0].end, 0.01 * 2 * M_PI, 1e-12);

  const auto texts = c.ofKind(Command::Kind::Text);
  ASSERT_EQ(texts.size(), 1u);
  EXPECT_EQ(texts[0].text, "99%");
  // Centred at two thirds of R along the middle of its slice.
  const double mid = (0.01 + 1) * M_PI;
  EXPECT_NEAR(texts[0].rect.centre().x, 110 + 100.0 / 3 * std::cos(mid), 1e-9);
  EXPECT_NEAR(texts[0].rect.centre().y, 60 + 100.0 / 3 * std::sin(mid), 1e-9);
}

TEST(RingChart, ThreePercentIsTheLabelThreshold) {
  drawing::RecordingCanvas at3, under3;
  drawNewChart(at3, values({3, 97}), {0, 0, 100, 100}, 2);
  drawNewChart(under3, values({2.9, 97.1}), {0, 0, 100, 100}, 2);
  ASSERT_EQ(at3.ofKind(Command::Kind::Text).size(), 2u);
  EXPECT_EQ(at3.ofKind(Command::Kind::Text)[0].text, "3%");
  ASSERT_EQ(under3.ofKind(Command::Kind::Text).size(), 1u);
  EXPECT_EQ(under3.ofKind(Command::Kind::Text)[0].text, "97%");
}

TEST(RingChart, NothingToShareDrawsOnlyTheShadow) {
  drawing::RecordingCanvas c;
  drawNewChart(c, values({0, 0}), {0, 0, 100, 100}, 1);
  EXPECT_EQ(c.commands().size(), 1u);
  drawing::RecordingCanvas tiny;
  drawNewChart(tiny, values({1}), {0, 0, 10, 10}, 1);
  EXPECT_TRUE(tiny.commands().empty());
}

}  // namespace
}  // namespace lad::charts
