#include "charts/line_series.h"

#include <string>
#include <vector>

#include "charts/chart_text.h"

namespace lad::charts {

namespace {

double lineWidth(int type, double z) {
  switch (type) {
    case 1:
      return 4 * z;
    case 5:
      return 5 * z;
    case 6:
      return 1;  // the context's own width
    case 8:
      return z;
  }
  return 2 * z;
}

struct Placed {
  drawing::Point at;
  std::string label, subtext;
};

std::vector<Placed> place(const List& points, const AxisRange& range, drawing::Rect plot) {
  std::vector<Placed> out;
  for (const auto& p : points)
    out.push_back({valueToPoint(range, plot, p["x"].doubleValue(), p["y"].doubleValue()),
                   p["label"].text(), p["subtext"].text()});
  return out;
}

void strokeCurve(drawing::Canvas& c, const std::vector<Placed>& pts, int type,
                 const SeriesStyle& style) {
  drawing::Path path;
  path.moveTo(pts.front().at);
  for (std::size_t i = 1; i < pts.size(); ++i) path.lineTo(pts[i].at);
  const std::vector<double> dash = type == 8 ? std::vector<double>{5, 5} : std::vector<double>{};
  c.strokePath(path, style.fore, lineWidth(type, style.zoom), dash);
}

// The region between the curve and the foot (types 3 and 7) or the top (type 4), with two units
// of room at both ends, filled with a fading gradient of the series colour.
void fillUnderCurve(drawing::Canvas& c, const std::vector<Placed>& pts, int type,
                    drawing::Rect plot, drawing::Color color) {
  const double edge = type == 4 ? plot.y : plot.bottom();
  drawing::Path region;
  region.moveTo({pts.front().at.x - 2, edge}).lineTo({pts.front().at.x - 2, pts.front().at.y});
  for (const auto& p : pts) region.lineTo(p.at);
  region.lineTo({pts.back().at.x + 2, pts.back().at.y}).lineTo({pts.back().at.x + 2, edge});
  region.close();
  if (type == 7) {
    c.fillGradient(region, {plot.x, plot.bottom()}, {plot.x, plot.y},
                   {{0, color.withAlpha(0.5)}, {1, color.withAlpha(0)}});
  } else {
    c.fillGradient(region, {plot.x, plot.y}, {plot.x, plot.bottom()},
                   {{0.1, color.withAlpha(0.3)}, {1, color.withAlpha(0)}});
  }
}

void fillCircle(drawing::Canvas& c, drawing::Point at, double r, drawing::Color color) {
  c.fillEllipse({at.x - r, at.y - r, 2 * r, 2 * r}, color);
}

void drawMark(drawing::Canvas& c, const Placed& p, int type, const SeriesStyle& style) {
  const double z = style.zoom;
  const bool big = type == 5;
  if (p.label.empty()) {
    if (!big) fillCircle(c, p.at, 2 * z, style.fore);
    return;
  }
  const double radius = (big ? 6 : 3) * z;
  if (type != 8) {
    fillCircle(c, p.at, radius, style.fore);
    fillCircle(c, p.at, (big ? 2 : 1) * z, style.back);
  }
  const drawing::Font font{8 * z, true};
  const drawing::Color color = style.text.withAlpha(0.7);
  drawCentredText(c, p.label, font, color, p.at.x, p.at.y - radius - 10 * z);
  if (!p.subtext.empty()) drawCentredText(c, p.subtext, font, color, p.at.x, p.at.y + radius);
}

}  // namespace

void drawNewLine(drawing::Canvas& c, const List& points, const AxisRange& range, drawing::Rect plot,
                 const SeriesStyle& style) {
  if (points.empty()) return;
  const auto pts = place(points, range, plot);
  strokeCurve(c, pts, style.type, style);
  if (style.type == 3 || style.type == 4 || style.type == 7)
    fillUnderCurve(c, pts, style.type, plot, style.fore);
  for (const auto& p : pts) drawMark(c, p, style.type, style);
}

}  // namespace lad::charts
