// Text measurement with the font that the browser is served (DejaVu Sans), so that layout made
// on the server fits what the browser draws. Every measurement of the system goes through here.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "drawing/geometry.h"

namespace lad::drawing {

inline constexpr const char* kFontFamily = "DejaVu Sans";

// The size of the text laid out in maxWidth (0: one line per "\n", no breaking).
Size measureText(std::string_view text, Font f, double maxWidth = 0);

// One line of laid-out text; the baseline is measured from the top of the layout.
struct TextLine {
  std::string text;
  double baseline = 0;
  bool operator==(const TextLine&) const = default;
};

// The lines that the text breaks into in maxWidth, as measureText lays them out; the cairo back
// end draws the same lines.
std::vector<TextLine> breakText(std::string_view text, Font f, double maxWidth = 0);

}  // namespace lad::drawing
