// A picture that fills an area: scaled to cover it whole, centred on it, and cut to it.
#pragma once

#include <string>

#include "drawing/canvas.h"

namespace lad::reports {

// The rectangle the picture of that size covers when it fills the area.
drawing::Rect fillingRect(double width, double height, drawing::Rect area);

// Draws the picture filling the area, cut to `clip` (the area itself when empty). False when
// the picture cannot be read; nothing is drawn then.
bool drawPictureFilling(drawing::Canvas& canvas, const std::string& file, drawing::Rect area,
                        const drawing::Path& clip = {});

}  // namespace lad::reports
