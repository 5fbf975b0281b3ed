#include "charts/progress_graph.h"

namespace lad::charts {

namespace {

constexpr double kBarWidth = 320, kBarHeight = 11;

}  // namespace

void drawProgressGraph(drawing::Canvas& c, drawing::Point origin, int days, double s) {
  c.fillRect({origin.x, origin.y + 2 * s, kBarWidth * s, kBarHeight * s}, {1, 0.5, 0, 1});
  const double left = days * 6.0 / 7 + 1;
  c.fillRect({origin.x + left * s, origin.y + 13 * s, kBarWidth * s, kBarHeight * s},
             {0, 0.7, 0, 1});
}

}  // namespace lad::charts
