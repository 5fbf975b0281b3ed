// Photos as the diary takes them in (JPEG or PNG from a browser) and keeps them (JPEG).
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace lad::platform {

// 8-bit RGB pixels, rows top to bottom, three bytes a pixel, no padding.
struct Image {
  int width = 0;
  int height = 0;
  std::vector<std::uint8_t> rgb;
};

struct ImageSize {
  int width = 0;
  int height = 0;
  bool operator==(const ImageSize&) const = default;
};

// The size that decodeImage would give, read from the header of a JPEG or PNG without its
// pixels; nullopt for anything else.
std::optional<ImageSize> imageSize(std::span<const std::uint8_t> bytes);

// Reads a JPEG or PNG, told apart by their signatures. Transparency is composed over white,
// grey, palette and 16-bit images come out as 8-bit RGB, and a JPEG's EXIF orientation is
// applied so that a phone photo stands upright. Anything else, data cut short, or more than
// 50 megapixels gives nullopt and a text in `error` (when given).
std::optional<Image> decodeImage(std::span<const std::uint8_t> bytes, std::string* error);

// The image read as decodeImage reads it and shrunk as scaledToFit shrinks it; a large JPEG is
// not read at full size first.
std::optional<Image> decodeImageToFit(std::span<const std::uint8_t> bytes, int maxSide,
                                      std::string* error);

// Baseline JPEG of the image; quality 1 to 100 (clamped). Empty for an image without pixels or
// whose `rgb` does not hold width * height pixels.
std::vector<std::uint8_t> encodeJpeg(const Image& image, int quality);

// The same of pixels held as native 32-bit words 0x00RRGGBB (a painting surface's), rows
// `stride` bytes apart, read in place. Empty when the rows cannot hold the width.
std::vector<std::uint8_t> encodeJpegFromWords(const std::uint8_t* words, int width, int height,
                                              std::size_t stride, int quality);

// Any image that decodeImage reads, as a JPEG of the given quality.
std::optional<std::vector<std::uint8_t>> toJpeg(std::span<const std::uint8_t> bytes, int quality,
                                                std::string* error);

// The image shrunk so that neither side exceeds maxSide (at least 1), keeping its aspect; each
// new pixel is the area-weighted mean of the pixels it covers. Smaller images come back as they
// are.
Image scaledToFit(const Image& image, int maxSide);

}  // namespace lad::platform
