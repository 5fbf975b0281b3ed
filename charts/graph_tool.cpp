#include "charts/graph_tool.h"

namespace lad::charts {

namespace {

// Two wedges from the centre: filled by the even-odd rule, the inner one cancels out.
draw::Path ringSegment(draw::Point centre, double rad1, double rad2, double from, double to) {
  draw::Path p;
  for (double radius : {rad1, rad2}) {
    p.moveTo(centre);
    p.arc(centre, radius, from, to);
    p.close();
  }
  return p;
}

}  // namespace

void drawArc(draw::Canvas& c, double start, double end, draw::Color color, double rad1, double rad2,
             draw::Point center) {
  c.fillPath(ringSegment(center, rad1, rad2, start, end), color, draw::FillRule::EvenOdd);
}

}  // namespace lad::charts
