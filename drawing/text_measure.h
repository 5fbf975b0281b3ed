// Text measurement with the font that the browser is served (DejaVu Sans), so that layout made
// on the server fits what the browser draws. Every measurement of the system goes through here.
#pragma once

#include <string_view>

#include "drawing/geometry.h"

namespace lad::draw {

inline constexpr const char* kFontFamily = "DejaVu Sans";

// The size of the text laid out in maxWidth (0: one line per "\n", no breaking).
Size measureText(std::string_view text, Font f, double maxWidth = 0);

}  // namespace lad::draw
