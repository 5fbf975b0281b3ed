#include "charts/chart.h"

#include <gtest/gtest.h>

#include "charts/chart_dictionary.h"
#include "charts/palette.h"
#include "charts/plot_scale.h"
#include "drawing/recording_canvas.h"

namespace lad::charts {
namespace {

using Kind = drawing::Command::Kind;

Map sampleDic() {
  Map dic;
  initGraphDic(dic);
  dic.set("xAxisMax", 4);
  dic.set("yAxisMax", 100);
  dic.set("isBorders", true);
  dic.set("mainColor", colorValue({0.7, 0, 0, 1}));
  dic.set("backColor", colorValue({0.5, 0.5, 0.5, 1}));
  dic.set("textColor", colorValue({0, 0, 0, 1}));
  dic.set("bottomCaption", "График продолжительности схваток");
  List series;
  addPoint(series, 1, 40, "00:40");
  addPoint(series, 2, 70, "01:10");
  addPoint(series, 3, 55, "00:55");
  dic.set("Graph1", series);
  dic.set("Graph1Type", "5");
  return dic;
}

drawing::RecordingCanvas draw(const Map& dic, double s = 2) {
  Chart chart(s, LADANEYA_IMAGES_DIR);
  chart.prepare(dic);
  drawing::RecordingCanvas c;
  chart.drawContext(c, {0, 0, 320, 200});
  return c;
}

TEST(Chart, BordersCaptionsAndSeriesPlacement) {
  const auto c = draw(sampleDic());
  EXPECT_EQ(c.commands().front().kind, Kind::Clear);
  const auto stroke = c.ofKind(Kind::StrokePath).at(0);
  // Plot inset 15s at the sides, 18s on top and 20s at the foot, with s = 2.
  const drawing::Point first = stroke.path.ops()[0].to;
  EXPECT_DOUBLE_EQ(first.x, 30 + 260 / 4.0);
  EXPECT_NEAR(first.y, 36 + 124 * 0.6, 1e-9);
  EXPECT_EQ(getPoint(sampleDic(), {0, 0, 320, 200}, 2, 1, 40), stroke.path.ops()[0].to);
  const auto caption = c.ofKind(Kind::Text).front();
  EXPECT_EQ(caption.text, "График продолжительности схваток");
}

TEST(Chart, ZoomScalesLinesButNotMargins) {
  Map dic = sampleDic();
  dic.set("zoom", 5);
  const auto line = draw(dic, 1).ofKind(Kind::StrokePath).at(0);
  EXPECT_DOUBLE_EQ(line.width, 25);
  EXPECT_DOUBLE_EQ(line.path.ops()[0].to.x, 15 + 290 / 4.0);
}

TEST(Chart, TicksGridBottomLineAndBackground) {
  Map dic = sampleDic();
  List ticks;
  for (int i = 0; i <= 4; ++i) {
    Map t;
    t.set("pos", i);
    t.set("label", i % 2 ? std::to_string(i) : "");
    ticks.push_back(t);
  }
  dic.set("xAxisValue", ticks);
  dic.set("bottomLine", 1);
  dic.set("backgroundColor", colorValue({1, 1, 1, 1}));
  auto c = draw(dic);
  EXPECT_EQ(c.ofKind(Kind::FillRect).size(), 2u) << "the background and the bottom line";
  int tickLabels = 0;
  for (const auto& t : c.ofKind(Kind::Text)) tickLabels += t.text == "1" || t.text == "3";
  EXPECT_EQ(tickLabels, 2);
  EXPECT_EQ(c.ofKind(Kind::StrokePath).size(), 1u);  // setka false: no grid

  dic.set("setka", true);
  c = draw(dic);
  const auto lines = c.ofKind(Kind::StrokePath);
  ASSERT_EQ(lines.size(), 6u);
  EXPECT_EQ(lines[1].path.ops()[0].to, (drawing::Point{95, 160}));
}

TEST(Chart, SeriesOverlayInOrderAndLegendColours) {
  Map dic = sampleDic();
  dic.set("Graph2", dic["Graph1"]);
  dic.set("Graph2Type", "3");
  dic.set("Graph2Color", colorValue({0, 0.5, 0, 1}));
  List legend;
  for (int pos = 1; pos <= 8; ++pos) addToLegenda(legend, "ряд " + std::to_string(pos), pos, false);
  dic.set("Legenda", legend);
  const auto c = draw(dic);
  const auto strokes = c.ofKind(Kind::StrokePath);
  ASSERT_EQ(strokes.size(), 2u);
  EXPECT_EQ(strokes[1].color, (drawing::Color{0, 0.5, 0, 1}));
  const auto squares = c.ofKind(Kind::FillRect);
  ASSERT_EQ(squares.size(), 8u);
  EXPECT_EQ(squares[7].color, nextColor(1));
}

TEST(Chart, TypeNineDrawsARingInThePlot) {
  Map dic = sampleDic();
  List values;
  addPoint(values, 1, 0);
  addPoint(values, 99, 0);
  dic.set("Graph1", values);
  dic.set("Graph1Type", "9");
  const auto c = draw(dic);
  EXPECT_TRUE(c.ofKind(Kind::StrokePath).empty());
  // The shadow and two slices, centred in the plot {30, 36, 260, 124}.
  const auto rings = c.ofKind(Kind::FillPath);
  ASSERT_EQ(rings.size(), 3u);
  EXPECT_EQ(rings[1].path.ops()[0].to, (drawing::Point{160, 98}));
}

TEST(Chart, PictureFitsThePlotAndItsCallOutsStayInTheFrame) {
  Map dic = sampleDic();
  dic.erase("Graph1");
  dic.set("mainImage", "icon-3d.png");  // 96 by 96
  Map hint;
  hint.set("hint", "двенадцать недель беременности");
  hint.set("x", 96);
  hint.set("y", 48);
  dic.set("ImageHints", List{Value(hint)});
  const auto c = draw(dic);
  // Natural proportions, centred in the plot {30, 36, 260, 124}.
  EXPECT_EQ(c.ofKind(Kind::Image).at(0).rect, (drawing::Rect{98, 36, 124, 124}));
  // The call-out at the picture's right edge would leave the frame and is moved back inside.
  EXPECT_LE(c.ofKind(Kind::FillPath).at(0).path.ops()[2].to.x + 6, 320 + 1e-9);

  // A picture that cannot be read is left out together with its call-outs.
  dic.set("mainImage", "missing.png");
  EXPECT_TRUE(draw(dic).ofKind(Kind::FillPath).empty());
}

}  // namespace
}  // namespace lad::charts
