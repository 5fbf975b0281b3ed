#include "charts/graph_tool.h"

namespace lad::charts {

namespace {

// Out along one radius and back along the other: no edge reaches the centre, where the many
// segments of a wheel meet and their antialiased tips would add up to a spot.
drawing::Path ringSegment(drawing::Point centre, double rad1, double rad2, double from, double to) {
  return drawing::Path().arc(centre, rad1, from, to).arcNegative(centre, rad2, to, from).close();
}

}  // namespace

void drawArc(drawing::Canvas& c, double start, double end, drawing::Color color, double rad1,
             double rad2, drawing::Point center) {
  c.fillPath(ringSegment(center, rad1, rad2, start, end), color, drawing::FillRule::EvenOdd);
}

}  // namespace lad::charts
