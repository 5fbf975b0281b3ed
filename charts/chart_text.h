// Placing measured texts on a chart.
#pragma once

#include <string_view>

#include "drawing/canvas.h"

namespace lad::charts {

// Draws the text centred on cx with its top at top.
void drawCentredText(drawing::Canvas& c, std::string_view text, drawing::Font f,
                     drawing::Color color, double cx, double top);

// Draws the text centred on the point both ways.
void drawTextAround(drawing::Canvas& c, std::string_view text, drawing::Font f,
                    drawing::Color color, drawing::Point centre);

}  // namespace lad::charts
