// A picture that fills an area: scaled to cover it whole, centred on it, and cut to it.
#pragma once

#include <string>

#include "drawing/canvas.h"

namespace lad::report {

// The rectangle the picture of that size covers when it fills the area.
draw::Rect fillingRect(double width, double height, draw::Rect area);

// Draws the picture filling the area, cut to `clip` (the area itself when empty). False when
// the picture cannot be read; nothing is drawn then.
bool drawPictureFilling(draw::Canvas& canvas, const std::string& file, draw::Rect area,
                        const draw::Path& clip = {});

}  // namespace lad::report
