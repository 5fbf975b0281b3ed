#include "charts/plot_scale.h"

namespace lad::charts {

AxisRange AxisRange::of(const Map& dic) {
  return {dic["xAxisMin"].doubleValue(), dic["xAxisMax"].doubleValue(),
          dic["yAxisMin"].doubleValue(), dic["yAxisMax"].doubleValue()};
}

drawing::Point valueToPoint(const AxisRange& range, drawing::Rect plot, double vx, double vy) {
  return {plot.x + (vx - range.minX) * plot.w / (range.maxX - range.minX),
          plot.y + plot.h - (vy - range.minY) * plot.h / (range.maxY - range.minY)};
}

drawing::Rect borderedPlot(drawing::Rect frame, double s) {
  return {frame.x + 15 * s, frame.y + 18 * s, frame.w - 30 * s, frame.h - 38 * s};
}

drawing::Point getPoint(const Map& dic, drawing::Rect frame, double s, double vx, double vy) {
  return valueToPoint(AxisRange::of(dic), borderedPlot(frame, s), vx, vy);
}

}  // namespace lad::charts
