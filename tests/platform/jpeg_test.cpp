#include <gtest/gtest.h>

#include <cstring>

#include "image_samples.h"
#include "platform/images.h"

namespace lad::platform::test {
namespace {

TEST(Jpeg, WordsOfAPaintingSurfaceAreReadInPlace) {
  // The quadrants as 0x00RRGGBB words in rows padded to 48 words.
  const Image source = quadrants(40, 30);
  constexpr std::size_t kStride = 48 * 4;
  std::vector<std::uint8_t> rows(kStride * 30, 0xEE);
  for (int y = 0; y < 30; ++y)
    for (int x = 0; x < 40; ++x) {
      const std::uint8_t* rgb = &source.rgb[(std::size_t(y) * 40 + x) * 3];
      const std::uint32_t word = std::uint32_t(rgb[0]) << 16 | std::uint32_t(rgb[1]) << 8 | rgb[2];
      std::memcpy(&rows[y * kStride + x * 4], &word, 4);
    }
  std::string error;
  const auto decoded = decodeImage(encodeJpegFromWords(rows.data(), 40, 30, kStride, 100), &error);
  ASSERT_TRUE(decoded) << error;
  expectQuarters(*decoded, {kRed, kGreen, kBlue, kWhite});
  EXPECT_TRUE(encodeJpegFromWords(rows.data(), 40, 30, 40 * 4 - 1, 100).empty());
  EXPECT_TRUE(encodeJpegFromWords(nullptr, 40, 30, kStride, 100).empty());
}

TEST(Jpeg, ImageWithoutItsPixelsIsNotEncoded) {
  EXPECT_TRUE(encodeJpeg(Image{}, 90).empty());
  Image tooShort = quadrants(8, 8);
  tooShort.rgb.pop_back();
  EXPECT_TRUE(encodeJpeg(tooShort, 90).empty());
}

TEST(Jpeg, ExifOrientationStandsThePhotoUprightAndUnusableExifLeavesItAsStored) {
  // Colours of the shown quarters (top left, top right, bottom left, bottom right) of the
  // stored red-green / blue-white picture, for each orientation.
  const std::array<std::array<Rgb, 4>, 8> shown = {{
      {kRed, kGreen, kBlue, kWhite},
      {kGreen, kRed, kWhite, kBlue},
      {kWhite, kBlue, kGreen, kRed},
      {kBlue, kWhite, kRed, kGreen},
      {kRed, kBlue, kGreen, kWhite},
      {kBlue, kRed, kWhite, kGreen},
      {kWhite, kGreen, kBlue, kRed},
      {kGreen, kWhite, kRed, kBlue},
  }};
  const auto jpeg = encodeJpeg(quadrants(48, 32), 95);
  for (int orientation = 1; orientation <= 8; ++orientation) {
    SCOPED_TRACE(orientation);
    const bool littleEndian = orientation % 2 == 0;
    const auto decoded = decodeImage(withExifOrientation(jpeg, orientation, littleEndian), nullptr);
    ASSERT_TRUE(decoded);
    const bool turned = orientation >= 5;
    EXPECT_EQ(decoded->width, turned ? 32 : 48);
    EXPECT_EQ(decoded->height, turned ? 48 : 32);
    expectQuarters(*decoded, shown[orientation - 1]);
  }
  const std::vector<std::vector<std::uint8_t>> payloads = {
      {'E', 'x', 'i', 'f', 0, 0, 'M', 'M', 0, 42, 0x7F, 0, 0, 0},     // directory past the end
      {'E', 'x', 'i', 'f', 0, 0, 'M', 'M', 0, 42, 0, 0, 0, 8, 0, 9},  // entries past the end
      {'E', 'x', 'i', 'f', 0, 0, 'M', 'I', 0, 42, 0, 0, 0, 8},        // no byte order
      {'h', 't', 't', 'p', ':', '/', '/'},                            // another APP1 kind
  };
  for (const auto& payload : payloads) {
    const auto decoded = decodeImage(withApp1(jpeg, payload), nullptr);
    ASSERT_TRUE(decoded);
    EXPECT_EQ(decoded->width, 48);
    expectQuarters(*decoded, {kRed, kGreen, kBlue, kWhite});
  }
  const auto outOfRange = decodeImage(withExifOrientation(jpeg, 9, false), nullptr);
  ASSERT_TRUE(outOfRange);
  EXPECT_EQ(outOfRange->width, 48);
}

}  // namespace
}  // namespace lad::platform::test
