// Reading a JPEG into upright RGB pixels.
#pragma once

#include <optional>

#include "platform/images.h"

namespace lad {

// The JPEG turned upright by its EXIF orientation; nullopt and `error` for anything that libjpeg
// refuses, data cut short, CMYK images, or more than 50 megapixels.
std::optional<Image> decodeJpeg(std::span<const std::uint8_t> bytes, std::string* error);

}  // namespace lad
