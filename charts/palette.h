// Colours of charts: the series and slice sequence, and colours kept in a chart dictionary as a
// list of red, green, blue and alpha in the 0 to 1 scale.
#pragma once

#include "core/value.h"
#include "drawing/geometry.h"

namespace lad::charts {

// Colour n of the sequence; n outside 2 to 7 gives the first colour.
draw::Color nextColor(int n);

Value colorValue(draw::Color c);
// A value that is not such a list reads as transparent, so an unset colour paints nothing.
draw::Color colorFrom(const Value& v);

}  // namespace lad::charts
