#include <algorithm>
#include <cmath>
#include <numbers>
#include <string>

#include "charts/chart_text.h"
#include "charts/graph_tool.h"
#include "charts/preg_parts.h"

namespace lad::charts {

namespace {

using Kind = PregListRow::Kind;

constexpr int kWeeks = 40;
constexpr double kSector = 2 * std::numbers::pi / kWeeks;
constexpr double kFutureAlpha = 0.35;
constexpr drawing::Color kEmpty{0.9, 0.9, 0.9, 1};
constexpr double kInnerShare = 0.3;  // the white ring's inner radius against its outer one
// Lengths in units of the scale.
constexpr double kMaxRadius = 150;  // of the white ring at most
constexpr double kNumberGap = 16;   // from the white ring out to the centres of the numbers
constexpr double kMargin = 4;       // beyond the present week's ring
constexpr double kRingPad = 3;      // white outside and inside the coloured rings
constexpr double kArcGap = 1.5;     // white between arcs side by side and ring by ring

struct Wheel {
  drawing::Canvas& c;
  const PregGraphStyle& style;
  drawing::Point centre;
  double outer = 0, inner = 0;
};

// Week 1 starts at the top, and the weeks go round clockwise.
double weekStart(int week) {
  return -std::numbers::pi / 2 + (week - 1) * kSector;
}

drawing::Point around(drawing::Point centre, double radius, double angle) {
  return {centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle)};
}

bool hasWeekRow(int week) {
  return std::ranges::any_of(pregListRows(), [week](const PregListRow& row) {
    return row.kind == Kind::Week && row.test == week;
  });
}

void drawWhiteRing(const Wheel& w) {
  const double s = w.style.s;
  const drawing::Path ring =
      drawing::Path().addCircle(w.centre, w.outer).addCircle(w.centre, w.inner);
  w.c.fillPathShadow(ring, drawing::FillRule::EvenOdd, {{0, 0, 0, 1.0 / 3}, {3 * s, 3 * s}, 5 * s});
  w.c.fillPath(ring, {1, 1, 1, 1}, drawing::FillRule::EvenOdd);
}

// One arc per type row and week, the rings in the order of the list from the outside in.
void drawSectors(const Wheel& w) {
  const double s = w.style.s;
  const auto rows = pregListRows();
  const auto rings = std::ranges::count(rows, Kind::Type, &PregListRow::kind);
  const double step = (w.outer - w.inner - 2 * kRingPad * s) / static_cast<double>(rings);
  for (int week = 1; week <= kWeeks; ++week) {
    const double alpha = week > w.style.curweek ? kFutureAlpha : 1;
    double outer = w.outer - kRingPad * s;
    for (const auto& row : rows) {
      if (row.kind != Kind::Type) continue;
      const double inner = outer - step + kArcGap * s;
      const double gap = kArcGap * s / ((outer + inner) / 2);
      const drawing::Color color = isWomanTypeInWeek(week, row.test) ? row.color : kEmpty;
      drawArc(w.c, weekStart(week) + gap / 2, weekStart(week) + kSector - gap / 2,
              color.withAlpha(alpha), outer, inner, w.centre);
      outer -= step;
    }
  }
}

void drawWeekNumbers(const Wheel& w) {
  const double s = w.style.s;
  for (int week = 1; week <= kWeeks; ++week) {
    const drawing::Point p =
        around(w.centre, w.outer + kNumberGap * s, weekStart(week) + kSector / 2);
    const bool toCome = week > w.style.curweek;
    if (hasWeekRow(week))
      drawWeekDot(w.c, p, week, toCome, s);
    else
      drawTextAround(w.c, std::to_string(week), {12 * s, false},
                     w.style.textColor.withAlpha(toCome ? 0.5 : 0.9), p);
    if (week == w.style.curweek) drawNowRing(w.c, p, kWeekDotRadius * s, s);
  }
}

}  // namespace

double drawPregWheel(drawing::Canvas& c, drawing::Rect r, const PregGraphStyle& style) {
  const double s = style.s;
  // From the white ring to the outside of the present week's ring.
  const double rim = (kNumberGap + kWeekDotRadius + kNowRingGap + kNowRingWidth / 2 + kMargin) * s;
  const double outer = std::min(r.w / 2 - rim, kMaxRadius * s);
  if (outer <= 0) return 0;
  const Wheel w{c, style, {r.x + r.w / 2, r.y + outer + rim}, outer, outer * kInnerShare};
  drawWhiteRing(w);
  drawSectors(w);
  drawWeekNumbers(w);
  return 2 * (outer + rim);
}

}  // namespace lad::charts
