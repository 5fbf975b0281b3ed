// Reading a JPEG into upright RGB pixels.
#pragma once

#include <optional>

#include "platform/images.h"

namespace lad::platform {

// The upright width and height of the JPEG, from its header alone; nullopt when libjpeg refuses
// the header.
std::optional<ImageSize> jpegSize(std::span<const std::uint8_t> bytes);

// The JPEG turned upright by its EXIF orientation; nullopt and `error` for anything that libjpeg
// refuses, data cut short, CMYK images, or more than 50 megapixels. With fitSide above 0 the
// decoder may shrink the picture by a power of two while its longer side stays at fitSide or
// more, which is much faster than reading every pixel of a large photo.
std::optional<Image> decodeJpeg(std::span<const std::uint8_t> bytes, std::string* error,
                                int fitSide = 0);

}  // namespace lad::platform
