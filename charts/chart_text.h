// Placing measured texts on a chart.
#pragma once

#include <string_view>

#include "drawing/canvas.h"

namespace lad::charts {

// Draws the text centred on cx with its top at top.
void drawCentredText(draw::Canvas& c, std::string_view text, draw::Font f, draw::Color color,
                     double cx, double top);

// Draws the text centred on the point both ways.
void drawTextAround(draw::Canvas& c, std::string_view text, draw::Font f, draw::Color color,
                    draw::Point centre);

}  // namespace lad::charts
