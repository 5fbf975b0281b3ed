// One series painted as a line with its marks, labels and, for some types, a gradient fill.
#pragma once

#include "charts/plot_scale.h"
#include "drawing/canvas.h"

namespace lad::charts {

struct SeriesStyle {
  int type = 3;  // 1 to 8; other values paint as the plain line of type 6
  drawing::Color fore, back, text;
  double zoom = 1;
};

void drawNewLine(drawing::Canvas& c, const List& points, const AxisRange& range, drawing::Rect plot,
                 const SeriesStyle& style);

}  // namespace lad::charts
