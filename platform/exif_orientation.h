// The orientation tag of a JPEG's EXIF segment: how a camera's pixels must turn to stand upright.
#pragma once

#include <cstdint>
#include <span>

namespace lad::platform {

// Orientation 1 to 8 from the payload of an APP1 segment ("Exif\0\0" and a TIFF block);
// 1 (as stored) when the segment is not EXIF, has no orientation, or is malformed.
int exifOrientation(std::span<const std::uint8_t> app1);

}  // namespace lad::platform
