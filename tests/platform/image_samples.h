// Images and files made for the image codec tests.
#pragma once

#include <png.h>

#include <array>
#include <cstdint>
#include <vector>

#include "platform/images.h"

namespace lad::platform::test {

using Rgb = std::array<std::uint8_t, 3>;

inline constexpr Rgb kRed = {255, 0, 0};
inline constexpr Rgb kGreen = {0, 255, 0};
inline constexpr Rgb kBlue = {0, 0, 255};
inline constexpr Rgb kWhite = {255, 255, 255};

// Top left red, top right green, bottom left blue, bottom right white.
Image quadrants(int width, int height);
// Pixels that do not compress well.
Image noise(int width, int height);
Rgb pixelAt(const Image& image, int x, int y);
// Checks the colours at the middles of the four quarters (top left, top right, bottom left,
// bottom right) within the error that JPEG compression brings.
void expectQuarters(const Image& image, const std::array<Rgb, 4>& expected);

// A PNG written by libpng from pixels in one of its simplified formats (PNG_FORMAT_*).
std::vector<std::uint8_t> pngOf(int width, int height, png_uint_32 format, const void* pixels,
                                const void* colormap = nullptr, int colormapEntries = 0);
// The JPEG with an APP1 EXIF segment that holds the orientation, in either byte order.
std::vector<std::uint8_t> withExifOrientation(std::vector<std::uint8_t> jpeg, int orientation,
                                              bool littleEndian);
// The JPEG with an APP1 segment of the given payload.
std::vector<std::uint8_t> withApp1(std::vector<std::uint8_t> jpeg,
                                   const std::vector<std::uint8_t>& payload);

}  // namespace lad::platform::test
