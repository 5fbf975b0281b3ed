#include "charts/line_series.h"

#include <gtest/gtest.h>

#include "charts/chart_dictionary.h"
#include "drawing/recording_canvas.h"

namespace lad::charts {
namespace {

using drawing::Command;
using Kind = drawing::Command::Kind;

const AxisRange kRange{0, 10, 0, 100};
const drawing::Rect kPlot{10, 20, 200, 100};
const drawing::Color kFore{1, 0, 0, 1}, kBack{0, 0, 1, 1}, kText{0, 0, 0, 1};

drawing::RecordingCanvas paint(const List& points, int type, double zoom = 1) {
  drawing::RecordingCanvas c;
  drawNewLine(c, points, kRange, kPlot, {type, kFore, kBack, kText, zoom});
  return c;
}

List twoPoints() {
  List l;
  addPoint(l, 0, 0);
  addPoint(l, 10, 100, "01:40");
  return l;
}

TEST(LineSeries, ValuesMapIntoThePlotAndTheCurveIsStroked) {
  const auto c = paint(twoPoints(), 2);
  const auto strokes = c.ofKind(Kind::StrokePath);
  ASSERT_EQ(strokes.size(), 1u);
  ASSERT_EQ(strokes[0].path.ops().size(), 2u);
  EXPECT_EQ(strokes[0].path.ops()[0].to, (drawing::Point{10, 120}));
  EXPECT_EQ(strokes[0].path.ops()[1].to, (drawing::Point{210, 20}));
}

TEST(LineSeries, EmptyAndOnePointSeries) {
  EXPECT_TRUE(paint({}, 5).commands().empty());
  List one;
  addPoint(one, 5, 50, "00:50");
  EXPECT_EQ(paint(one, 5).ofKind(Kind::StrokePath).size(), 1u);
}

TEST(LineSeries, MarksAndWidthsFollowTheType) {
  // Type 5: unlabelled points go unmarked; a labelled one gets a ring and a dot, at its point.
  const auto t5 = paint(twoPoints(), 5, 2);
  EXPECT_DOUBLE_EQ(t5.ofKind(Kind::StrokePath)[0].width, 10);
  const auto marks = t5.ofKind(Kind::FillEllipse);
  ASSERT_EQ(marks.size(), 2u);
  EXPECT_EQ(marks[1].rect.centre(), (drawing::Point{210, 20}));
  EXPECT_EQ(t5.ofKind(Kind::Text).at(0).text, "01:40");

  // Type 1: every point marked; the unlabelled one with a dot of 2z.
  const auto t1 = paint(twoPoints(), 1);
  EXPECT_DOUBLE_EQ(t1.ofKind(Kind::StrokePath)[0].width, 4);
  EXPECT_EQ(t1.ofKind(Kind::FillEllipse).size(), 3u);

  // Type 8: dashed width z, labels without their marks.
  const auto t8 = paint(twoPoints(), 8, 3);
  EXPECT_DOUBLE_EQ(t8.ofKind(Kind::StrokePath)[0].width, 3);
  EXPECT_EQ(t8.ofKind(Kind::StrokePath)[0].dash, (std::vector<double>{5, 5}));
  EXPECT_EQ(t8.ofKind(Kind::FillEllipse).size(), 1u);
  EXPECT_EQ(t8.ofKind(Kind::Text).size(), 1u);
}

TEST(LineSeries, GradientFillsTowardsTheFoot) {
  EXPECT_TRUE(paint(twoPoints(), 2).ofKind(Kind::Gradient).empty());
  const auto under = paint(twoPoints(), 3).ofKind(Kind::Gradient);
  ASSERT_EQ(under.size(), 1u);
  EXPECT_EQ(under[0].from, (drawing::Point{10, 20}));
  EXPECT_EQ(under[0].stops, (std::vector<drawing::GradientStop>{{0.1, kFore.withAlpha(0.3)},
                                                                {1, kFore.withAlpha(0)}}));
  // Closed along the foot, two units beyond both ends.
  const auto& ops = under[0].path.ops();
  EXPECT_EQ(ops.front().to, (drawing::Point{8, 120}));
  EXPECT_EQ(ops[ops.size() - 2].to, (drawing::Point{212, 120}));
}

}  // namespace
}  // namespace lad::charts
