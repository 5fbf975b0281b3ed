#include "charts/ring_chart.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <numbers>

#include "charts/chart_text.h"
#include "charts/graph_tool.h"
#include "charts/palette.h"

namespace lad::charts {

namespace {

constexpr double kTwoPi = 2 * std::numbers::pi;

void drawShareLabel(drawing::Canvas& c, double share, double mid, drawing::Point centre,
                    double outer, double z) {
  if (share * 100 < 3) return;
  char text[16];
  std::snprintf(text, sizeof text, "%.0f%%", share * 100);
  const double d = outer * 2 / 3;
  drawTextAround(c, text, {13 * z, false}, {1, 1, 1, 1},
                 {centre.x + d * std::cos(mid), centre.y + d * std::sin(mid)});
}

}  // namespace

void drawNewChart(drawing::Canvas& c, const List& points, drawing::Rect r, double zoom) {
  double total = 0;
  for (const auto& p : points) total += p["x"].doubleValue();
  const drawing::Point centre = r.centre();
  const double outer = (std::min(r.w, r.h) - 20 * zoom) / 2;
  if (outer <= 0) return;
  const double inner = outer / 3;
  const drawing::Point shadow{centre.x + 2 * zoom, centre.y + 2 * zoom};
  drawArc(c, 0, kTwoPi, {0, 0, 0, 0.2}, outer, inner, shadow);
  if (total <= 0) return;
  double angle = 0;
  for (std::size_t i = 0; i < points.size(); ++i) {
    const double share = points[i]["x"].doubleValue() / total;
    const double end = angle + share * kTwoPi;
    drawArc(c, angle, end, nextColor(static_cast<int>(i) + 1), outer, inner, centre);
    drawShareLabel(c, share, (angle + end) / 2, centre, outer, zoom);
    angle = end;
  }
}

}  // namespace lad::charts
