// The ring chart: one slice per value with its share in percent, over a shadow ring.
#pragma once

#include "core/value.h"
#include "drawing/canvas.h"

namespace lad::charts {

// The values are the points' x; slice n takes colour n of the sequence.
void drawNewChart(drawing::Canvas& c, const List& points, drawing::Rect r, double zoom);

}  // namespace lad::charts
