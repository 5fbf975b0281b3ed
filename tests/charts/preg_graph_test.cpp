#include "charts/preg_graph.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

#include "charts/progress_graph.h"
#include "drawing/recording_canvas.h"
#include "tests/support/test_files.h"
#include "tests/support/translation_table.h"

namespace lad::charts {
namespace {

using Kind = drawing::Command::Kind;
constexpr drawing::Color kOrange{1, 0.5, 0, 1};
constexpr drawing::Color kInk{0.2, 0.1, 0.1, 1};

PregGraphStyle style(const Translator& t, int curweek, double s) {
  return {t, curweek, s, kInk, true, LADANEYA_IMAGES_DIR};
}

struct Drawn {
  drawing::RecordingCanvas canvas;
  double height = 0;
};

Drawn drawWheel(const PregGraphStyle& st, drawing::Rect r = {0, 0, 320, 2000}) {
  Drawn d;
  d.height = drawWomanChart(d.canvas, r, st);
  return d;
}

// The centre of a circle made by Path::addCircle.
drawing::Point circleCentre(const drawing::Command& c) {
  return c.path.ops().at(1).to;
}

TEST(PregGraph, WeeksOfTheTypes) {
  const struct {
    int week, type;
    bool holds;
  } cases[] = {{4, 1, false},  {5, 1, true},   {13, 1, false}, {33, 1, true},
               {23, 2, false}, {25, 2, false}, {26, 2, true},  {40, 5, true},
               {41, 5, false}, {34, 12, true}, {33, 12, false}};
  for (const auto& c : cases)
    EXPECT_EQ(isWomanTypeInWeek(c.week, c.type), c.holds) << c.week << ", " << c.type;
  for (int week = -1; week <= 42; ++week)
    for (int type : {0, 13, -1})
      EXPECT_FALSE(isWomanTypeInWeek(week, type)) << week << ", " << type;
}

TEST(PregGraph, FifthWeekRingsItsNumberAndLightsItsRows) {
  const Translator russian;
  const auto d = drawWheel(style(russian, 5, 1));
  std::vector<drawing::Command> rings;
  for (const auto& c : d.canvas.ofKind(Kind::StrokePath))
    if (c.color == kOrange) rings.push_back(c);
  ASSERT_EQ(rings.size(), 5u) << "the week on the wheel and four rows";

  // The first "5" drawn is the number on the wheel, on its dot.
  const auto texts = d.canvas.ofKind(Kind::Text);
  const auto five = std::ranges::find(texts, std::string("5"), &drawing::Command::text);
  ASSERT_NE(five, texts.end());
  EXPECT_NEAR(circleCentre(rings[0]).x, five->rect.centre().x, 1e-9);
  EXPECT_NEAR(circleCentre(rings[0]).y, five->rect.centre().y, 1e-9);

  // Rows 2, 8, 9 and 10 (counted from 1) show in full, the other rows paler.
  const auto rows = pregListRows();
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const auto text = std::ranges::find(texts, std::string(rows[i].text), &drawing::Command::text);
    ASSERT_NE(text, texts.end()) << rows[i].text;
    const bool isLit = i == 1 || (i >= 7 && i <= 9);
    const double alpha = rows[i].kind == PregListRow::Kind::Header ? 0.8 : isLit ? 1 : 0.6;
    EXPECT_EQ(text->color, kInk.withAlpha(alpha)) << rows[i].text;
  }
}

TEST(PregGraph, SectorsAreColouredInTheirWeeksAndPalerToCome) {
  const Translator russian;
  const double s = 2;
  const auto d = drawWheel(style(russian, 20, s), {0, 0, 640, 4000});
  const auto fills = d.canvas.ofKind(Kind::FillPath);
  ASSERT_EQ(fills.size(), 1u + 40 * 12) << "the white ring, then 12 rings in 40 weeks";
  // Week by week, the rings in the list's order: types 11, 12, then 1 to 10.
  const auto arc = [&](int week, int ring) -> const drawing::Command& {
    return fills.at(1 + (week - 1) * 12 + ring);
  };
  const drawing::Color grey{0.9, 0.9, 0.9, 1};
  EXPECT_EQ(arc(10, 2).color, (drawing::Color{0.9, 0, 0, 1}));  // nausea, in the past
  EXPECT_EQ(arc(10, 0).color, grey);
  EXPECT_EQ(arc(20, 0).color, (drawing::Color{0, 0.5, 0, 1}));  // the present week in full
  EXPECT_EQ(arc(30, 0).color, (drawing::Color{0, 0.5, 0, 0.35}));
  // Forty equal shares, the first from the top.
  const double sector = 2 * std::numbers::pi / 40;
  const auto& first = arc(1, 0).path.ops()[0];
  const auto& later = arc(11, 0).path.ops()[0];
  EXPECT_NEAR(later.start - first.start, 10 * sector, 1e-9);
  EXPECT_NEAR((first.start + first.end) / 2, -std::numbers::pi / 2 + sector / 2, 1e-9);
}

TEST(PregGraph, HeightCoversTheTranslatedListAndItsCap) {
  testing::TempDir dir;
  const Translator german =
      testing::germanTranslator(dir.path() / "t.sqlite", {{"Токсикоз", "Übelkeit"}});
  const drawing::Rect r{10, 30, 320, 2000};
  const auto once = drawWheel(style(german, 12, 1), r);
  const auto bands = once.canvas.ofKind(Kind::FillRect);
  ASSERT_EQ(bands.size(), 1u);
  EXPECT_DOUBLE_EQ(bands[0].rect.bottom(), r.y + once.height);
  const auto texts = once.canvas.ofKind(Kind::Text);
  EXPECT_EQ(std::ranges::count(texts, std::string("Übelkeit"), &drawing::Command::text), 1);
  for (const auto& t : texts) {
    EXPECT_LE(t.rect.bottom(), bands[0].rect.bottom()) << t.text;
    EXPECT_LE(t.rect.right(), r.right()) << t.text;
    EXPECT_GE(t.rect.x, r.x) << t.text;
  }
  EXPECT_LT(once.canvas.ofKind(Kind::Image).at(0).rect.bottom(), bands[0].rect.bottom());

  EXPECT_GT(drawWheel(style(german, 12, 2), {10, 30, 640, 4000}).height, 1.9 * once.height);
}

TEST(ProgressGraph, GreenBarSlidesWithTheDays) {
  drawing::RecordingCanvas c;
  drawProgressGraph(c, {5, 7}, 140, 2);
  const auto bars = c.ofKind(Kind::FillRect);
  ASSERT_EQ(bars.size(), 2u);
  EXPECT_EQ(bars[0].rect, (drawing::Rect{5, 11, 640, 22}));
  EXPECT_EQ(bars[1].rect, (drawing::Rect{5 + 2 * (140 * 6.0 / 7 + 1), 33, 640, 22}));
}

}  // namespace
}  // namespace lad::charts
