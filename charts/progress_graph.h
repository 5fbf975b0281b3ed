// The small bar of a pregnancy's progress: an orange bar, and under it a green one that slides
// to the right with the days.
#pragma once

#include "drawing/canvas.h"

namespace lad::charts {

// The frame of the bar, in units of the screen's scale.
inline constexpr drawing::Size kProgressFrame{300, 25};

// Paints the bar for the day count in the frame at the origin, scaled by s.
void drawProgressGraph(drawing::Canvas& c, drawing::Point origin, int days, double s);

}  // namespace lad::charts
