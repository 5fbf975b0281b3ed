#include <string>

#include "charts/chart_text.h"
#include "charts/preg_parts.h"

namespace lad::charts {

void drawWeekDot(drawing::Canvas& c, drawing::Point centre, int week, bool toCome, double s) {
  const double r = kWeekDotRadius * s;
  c.fillEllipse({centre.x - r, centre.y - r, 2 * r, 2 * r}, {0, 0.6, 0, toCome ? 0.4 : 1});
  drawTextAround(c, std::to_string(week), {12 * s, false}, {1, 1, 1, 1}, centre);
}

void drawNowRing(drawing::Canvas& c, drawing::Point centre, double markRadius, double s) {
  c.strokePath(drawing::Path().addCircle(centre, markRadius + kNowRingGap * s), {1, 0.5, 0, 1},
               kNowRingWidth * s);
}

}  // namespace lad::charts
