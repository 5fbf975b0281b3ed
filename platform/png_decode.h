// Reading a PNG of any colour type and depth into 8-bit RGB over white.
#pragma once

#include <optional>

#include "platform/images.h"

namespace lad::platform {

// The PNG with palette, grey and 16-bit samples expanded to 8-bit RGB and any transparency
// composed over white; nullopt and `error` for anything that libpng refuses, data cut short, or
// more than 50 megapixels.
std::optional<Image> decodePng(std::span<const std::uint8_t> bytes, std::string* error);

}  // namespace lad::platform
