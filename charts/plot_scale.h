// From chart values to positions in a plot rectangle.
#pragma once

#include "core/value.h"
#include "drawing/geometry.h"

namespace lad::charts {

struct AxisRange {
  double minX = 0, maxX = 0, minY = 0, maxY = 0;
  static AxisRange of(const Map& dic);
};

drawing::Point valueToPoint(const AxisRange& range, drawing::Rect plot, double vx, double vy);

// The plot of a chart drawn in frame with the bordered inset, whatever `isBorders` says: where
// a caller puts its own views over a chart.
drawing::Point getPoint(const Map& dic, drawing::Rect frame, double s, double vx, double vy);

// The plot rectangle inside the frame: inset by 15s at the sides, 18s at the top and 20s at the
// foot.
drawing::Rect borderedPlot(drawing::Rect frame, double s);

}  // namespace lad::charts
