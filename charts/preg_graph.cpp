#include "charts/preg_graph.h"

#include "charts/preg_parts.h"

namespace lad::charts {

double drawWomanChart(drawing::Canvas& c, drawing::Rect r, const PregGraphStyle& style) {
  const double wheel = drawPregWheel(c, r, style);
  return wheel + drawPregList(c, {r.x, r.y + wheel, r.w, r.h - wheel}, style);
}

}  // namespace lad::charts
