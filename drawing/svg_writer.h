// Pieces of SVG text: numbers, colours, escaped text and path data, appended to a string.
#pragma once

#include <string>
#include <string_view>

#include "drawing/geometry.h"
#include "drawing/path.h"

namespace lad::drawing::svg {

// Up to three decimals, without trailing zeros, never in the process locale.
void appendNumber(std::string& out, double v);
// ` name="value"`.
void appendAttribute(std::string& out, std::string_view name, double value);
// ` fill="#rrggbb"` (or another colour property), and the opacity property when the colour is
// not opaque.
void appendPaint(std::string& out, std::string_view colorName, std::string_view opacityName,
                 Color c);
// The text with &, <, >, " and ' as entities.
void appendEscaped(std::string& out, std::string_view text);
// The `d` attribute of the path, arcs included.
void appendPathData(std::string& out, const Path& p);

}  // namespace lad::drawing::svg
