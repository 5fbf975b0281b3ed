// The natural size of a PNG picture, for laying it out before it is drawn.
#pragma once

#include <optional>
#include <string>

#include "drawing/geometry.h"

namespace lad::drawing {

// Read from the file's header; nullopt when it is not a PNG.
std::optional<Size> pngSize(const std::string& file);

}  // namespace lad::drawing
