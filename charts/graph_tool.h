// Shapes shared by the round charts.
#pragma once

#include "drawing/canvas.h"

namespace lad::charts {

// Fills the ring segment between the radii from angle start to end (radians, clockwise on
// screen) in the colour.
void drawArc(draw::Canvas& c, double start, double end, draw::Color color, double rad1, double rad2,
             draw::Point center);

}  // namespace lad::charts
