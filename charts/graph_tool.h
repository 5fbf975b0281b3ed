// Shapes shared by the round charts.
#pragma once

#include "drawing/canvas.h"

namespace lad::charts {

// Fills the ring segment between the radii from angle start to end (radians, clockwise on
// screen) in the colour.
void drawArc(drawing::Canvas& c, double start, double end, drawing::Color color, double rad1,
             double rad2, drawing::Point center);

}  // namespace lad::charts
