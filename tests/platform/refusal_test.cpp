#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <zlib.h>

#include "image_samples.h"
#include "platform/images.h"

namespace lad::platform::test {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;
using Bytes = std::vector<std::uint8_t>;

void putBigEndian(Bytes& bytes, std::size_t at, std::uint32_t value, int size) {
  for (int i = 0; i < size; ++i)
    bytes[at + i] = static_cast<std::uint8_t>(value >> 8 * (size - 1 - i));
}

// The PNG with its header claiming another size, checksum fixed.
Bytes pngClaiming(Bytes png, std::uint32_t width, std::uint32_t height) {
  constexpr std::size_t kHeaderType = 12, kHeaderData = 16, kHeaderCrc = 29;
  putBigEndian(png, kHeaderData, width, 4);
  putBigEndian(png, kHeaderData + 4, height, 4);
  putBigEndian(png, kHeaderCrc, crc32(0, png.data() + kHeaderType, kHeaderCrc - kHeaderType), 4);
  return png;
}

// The JPEG with its frame header claiming another size.
Bytes jpegClaiming(Bytes jpeg, std::uint16_t width, std::uint16_t height) {
  std::size_t at = 2;
  while (jpeg[at + 1] != 0xC0) at += 2 + (jpeg[at + 2] << 8 | jpeg[at + 3]);
  putBigEndian(jpeg, at + 5, height, 2);
  putBigEndian(jpeg, at + 7, width, 2);
  return jpeg;
}

std::string refusal(const Bytes& bytes) {
  std::string error;
  EXPECT_FALSE(decodeImage(bytes, &error));
  EXPECT_FALSE(toJpeg(bytes, 90, nullptr));
  return error;
}

Bytes cut(const Bytes& bytes, std::size_t keep) {
  return Bytes(bytes.begin(), bytes.begin() + keep);
}

TEST(ImageRefusal, TruncatedData) {
  const Image source = noise(64, 48);
  const Bytes jpeg = encodeJpeg(source, 90);
  const Bytes png = pngOf(64, 48, PNG_FORMAT_RGB, source.rgb.data());
  for (const Bytes& whole : {jpeg, png}) {
    ASSERT_TRUE(decodeImage(whole, nullptr));
    EXPECT_THAT(refusal(cut(whole, whole.size() / 2)), HasSubstr("end"));
    EXPECT_THAT(refusal(cut(whole, 40)), Not(""));
  }
  EXPECT_THAT(refusal(cut(jpeg, jpeg.size() - 2)), Not(""));  // no end-of-image marker
  EXPECT_THAT(refusal(cut(png, png.size() - 12)), Not(""));   // no closing chunk
}

TEST(ImageRefusal, GarbageAndOtherFormats) {
  const Bytes noiseBytes = noise(16, 16).rgb;
  Bytes jpegHead = {0xFF, 0xD8, 0xFF};
  jpegHead.insert(jpegHead.end(), noiseBytes.begin(), noiseBytes.end());
  Bytes pngHead = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
  pngHead.insert(pngHead.end(), noiseBytes.begin(), noiseBytes.end());
  EXPECT_EQ(refusal({}), "not a JPEG or PNG image");
  EXPECT_EQ(refusal(noiseBytes), "not a JPEG or PNG image");
  EXPECT_EQ(refusal({'G', 'I', 'F', '8', '9', 'a', 1, 0, 1, 0}), "not a JPEG or PNG image");
  EXPECT_THAT(refusal(jpegHead), HasSubstr("JPEG: "));
  EXPECT_THAT(refusal(pngHead), HasSubstr("PNG: "));
}

TEST(ImageRefusal, MoreThanFiftyMegapixels) {
  const Image source = quadrants(16, 16);
  const Bytes png = pngOf(16, 16, PNG_FORMAT_RGB, source.rgb.data());
  EXPECT_EQ(refusal(pngClaiming(png, 10000, 5001)), "the image has more than 50 megapixels");
  EXPECT_EQ(refusal(pngClaiming(png, 1, 50'000'001)), "the image has more than 50 megapixels");
  // Exactly 50 megapixels passes the size check and fails only on the missing pixels.
  EXPECT_THAT(refusal(pngClaiming(png, 10000, 5000)), Not(HasSubstr("megapixels")));
  EXPECT_EQ(refusal(jpegClaiming(encodeJpeg(source, 90), 10000, 5001)),
            "the image has more than 50 megapixels");
}

}  // namespace
}  // namespace lad::platform::test
