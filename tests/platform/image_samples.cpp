#include "image_samples.h"

#include <gtest/gtest.h>

namespace lad::platform::test {

namespace {

constexpr int kJpegTolerance = 24;

void appendNumber(std::vector<std::uint8_t>& out, std::uint32_t value, int size, bool little) {
  for (int i = 0; i < size; ++i) {
    const int shift = 8 * (little ? i : size - 1 - i);
    out.push_back(static_cast<std::uint8_t>(value >> shift));
  }
}

}  // namespace

Image quadrants(int width, int height) {
  Image image{width, height, std::vector<std::uint8_t>(std::size_t(width) * height * 3)};
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const bool right = x >= width / 2;
      const bool bottom = y >= height / 2;
      const Rgb& colour = bottom ? (right ? kWhite : kBlue) : (right ? kGreen : kRed);
      std::copy(colour.begin(), colour.end(), image.rgb.begin() + (y * width + x) * 3);
    }
  }
  return image;
}

Image noise(int width, int height) {
  Image image{width, height, std::vector<std::uint8_t>(std::size_t(width) * height * 3)};
  std::uint32_t state = 12345;
  for (auto& sample : image.rgb) {
    state = state * 1103515245 + 12345;
    sample = static_cast<std::uint8_t>(state >> 16);
  }
  return image;
}

Rgb pixelAt(const Image& image, int x, int y) {
  const auto at = image.rgb.begin() + (std::size_t(y) * image.width + x) * 3;
  return {at[0], at[1], at[2]};
}

void expectQuarters(const Image& image, const std::array<Rgb, 4>& expected) {
  const int left = image.width / 4, right = image.width * 3 / 4;
  const int top = image.height / 4, bottom = image.height * 3 / 4;
  const std::array<Rgb, 4> actual = {pixelAt(image, left, top), pixelAt(image, right, top),
                                     pixelAt(image, left, bottom), pixelAt(image, right, bottom)};
  for (int q = 0; q < 4; ++q) {
    for (int c = 0; c < 3; ++c) {
      EXPECT_NEAR(actual[q][c], expected[q][c], kJpegTolerance)
          << "quarter " << q << " channel " << c;
    }
  }
}

std::vector<std::uint8_t> pngOf(int width, int height, png_uint_32 format, const void* pixels,
                                const void* colormap, int colormapEntries) {
  png_image header{};
  header.version = PNG_IMAGE_VERSION;
  header.width = width;
  header.height = height;
  header.format = format;
  header.colormap_entries = colormapEntries;
  png_alloc_size_t size = 0;
  png_image_write_to_memory(&header, nullptr, &size, 0, pixels, 0, colormap);
  std::vector<std::uint8_t> png(size);
  if (!png_image_write_to_memory(&header, png.data(), &size, 0, pixels, 0, colormap)) return {};
  png.resize(size);
  return png;
}

std::vector<std::uint8_t> withApp1(std::vector<std::uint8_t> jpeg,
                                   const std::vector<std::uint8_t>& payload) {
  std::vector<std::uint8_t> segment = {0xFF, 0xE1};
  appendNumber(segment, static_cast<std::uint32_t>(payload.size() + 2), 2, false);
  segment.insert(segment.end(), payload.begin(), payload.end());
  jpeg.insert(jpeg.begin() + 2, segment.begin(), segment.end());  // right after the SOI marker
  return jpeg;
}

std::vector<std::uint8_t> withExifOrientation(std::vector<std::uint8_t> jpeg, int orientation,
                                              bool littleEndian) {
  std::vector<std::uint8_t> exif = {'E', 'x', 'i', 'f', 0, 0};
  const std::uint8_t byteOrder = littleEndian ? 'I' : 'M';
  exif.insert(exif.end(), {byteOrder, byteOrder});
  appendNumber(exif, 42, 2, littleEndian);
  appendNumber(exif, 8, 4, littleEndian);  // first directory right after the header
  appendNumber(exif, 2, 2, littleEndian);  // two entries: another tag, then the orientation
  for (std::uint32_t tag : {0x010Fu, 0x0112u}) {
    appendNumber(exif, tag, 2, littleEndian);
    appendNumber(exif, 3, 2, littleEndian);  // SHORT
    appendNumber(exif, 1, 4, littleEndian);
    appendNumber(exif, tag == 0x0112u ? orientation : 7, 2, littleEndian);
    appendNumber(exif, 0, 2, littleEndian);
  }
  appendNumber(exif, 0, 4, littleEndian);  // no next directory
  return withApp1(std::move(jpeg), exif);
}

}  // namespace lad::platform::test
