#include "platform/images.h"

#include <algorithm>
#include <array>

#include "platform/codec_support.h"
#include "platform/jpeg_decode.h"
#include "platform/png_decode.h"

namespace lad::platform {

namespace {

constexpr std::array<std::uint8_t, 3> kJpegSignature = {0xFF, 0xD8, 0xFF};
constexpr std::array<std::uint8_t, 8> kPngSignature = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};

template <std::size_t N>
bool startsWith(std::span<const std::uint8_t> bytes, const std::array<std::uint8_t, N>& head) {
  return bytes.size() >= N && std::equal(head.begin(), head.end(), bytes.begin());
}

// Width and height stand big-endian in the IHDR chunk that follows the signature.
std::optional<ImageSize> pngSize(std::span<const std::uint8_t> bytes) {
  constexpr std::size_t kWidthAt = 16, kHeaderEnd = 24;
  if (bytes.size() < kHeaderEnd) return std::nullopt;
  const auto word = [&](std::size_t at) {
    return int(bytes[at]) << 24 | int(bytes[at + 1]) << 16 | int(bytes[at + 2]) << 8 |
           int(bytes[at + 3]);
  };
  const ImageSize size{word(kWidthAt), word(kWidthAt + 4)};
  if (size.width <= 0 || size.height <= 0) return std::nullopt;
  return size;
}

}  // namespace

std::optional<ImageSize> imageSize(std::span<const std::uint8_t> bytes) {
  if (startsWith(bytes, kJpegSignature)) return jpegSize(bytes);
  if (startsWith(bytes, kPngSignature)) return pngSize(bytes);
  return std::nullopt;
}

std::optional<Image> decodeImage(std::span<const std::uint8_t> bytes, std::string* error) {
  if (startsWith(bytes, kJpegSignature)) return decodeJpeg(bytes, error);
  if (startsWith(bytes, kPngSignature)) return decodePng(bytes, error);
  fail(error, "not a JPEG or PNG image");
  return std::nullopt;
}

std::optional<Image> decodeImageToFit(std::span<const std::uint8_t> bytes, int maxSide,
                                      std::string* error) {
  auto image = startsWith(bytes, kJpegSignature) ? decodeJpeg(bytes, error, maxSide)
                                                 : decodeImage(bytes, error);
  if (!image) return std::nullopt;
  return scaledToFit(*image, maxSide);
}

std::optional<std::vector<std::uint8_t>> toJpeg(std::span<const std::uint8_t> bytes, int quality,
                                                std::string* error) {
  const auto image = decodeImage(bytes, error);
  if (!image) return std::nullopt;
  auto jpeg = encodeJpeg(*image, quality);
  if (jpeg.empty()) {
    fail(error, "the image could not be written as JPEG");
    return std::nullopt;
  }
  return jpeg;
}

}  // namespace lad::platform
