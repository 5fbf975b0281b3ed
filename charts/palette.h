// Colours of charts: the series and slice sequence, and colours kept in a chart dictionary as a
// list of red, green, blue and alpha in the 0 to 1 scale.
#pragma once

#include "core/value.h"
#include "drawing/geometry.h"

namespace lad::charts {

// Colour n of the sequence; n outside 2 to 7 gives the first colour.
drawing::Color nextColor(int n);

Value colorValue(drawing::Color c);
// A value that is not such a list reads as transparent, so an unset colour paints nothing.
drawing::Color colorFrom(const Value& v);

// The line, grid and text colours of a chart drawn over the theme's background: dark lines and
// black text with the theme's dark icons (light backgrounds), light ones without.
void setThemeColors(Map& dic, bool darkIcons, drawing::Color gridOnLight);

}  // namespace lad::charts
