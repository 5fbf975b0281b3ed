#include <gtest/gtest.h>

#include "image_samples.h"
#include "platform/images.h"

namespace lad::platform::test {
namespace {

std::vector<Rgb> rowOf(const Image& image) {
  std::vector<Rgb> row;
  for (int x = 0; x < image.width; ++x) row.push_back(pixelAt(image, x, 0));
  return row;
}

std::vector<Rgb> decodedRow(const std::vector<std::uint8_t>& png) {
  std::string error;
  const auto image = decodeImage(png, &error);
  EXPECT_TRUE(image) << error;
  if (!image) return {};
  EXPECT_EQ(image->height, 1);
  return rowOf(*image);
}

TEST(Png, AlphaSixteenBitAndPaletteSamplesBecomeRgbOverWhite) {
  const std::uint8_t rgba[] = {255, 0, 0, 255, 0, 0, 0, 0, 0, 0, 0, 128, 0, 0, 255, 64};
  EXPECT_EQ(decodedRow(pngOf(4, 1, PNG_FORMAT_RGBA, rgba)),
            (std::vector<Rgb>{kRed, kWhite, {127, 127, 127}, {191, 191, 255}}));
  const std::uint16_t deep[] = {0, 65535};
  EXPECT_EQ(decodedRow(pngOf(2, 1, PNG_FORMAT_LINEAR_Y, deep)),
            (std::vector<Rgb>{{0, 0, 0}, kWhite}));
  const std::uint8_t palette[] = {255, 0, 0, 255, 0, 0, 255, 255, 9, 9, 9, 0};
  const std::uint8_t indices[] = {0, 1, 2, 1};
  EXPECT_EQ(decodedRow(pngOf(4, 1, PNG_FORMAT_RGBA_COLORMAP, indices, palette, 3)),
            (std::vector<Rgb>{kRed, kBlue, kWhite, kBlue}));
}

TEST(Png, IsConvertedToJpeg) {
  const Image source = quadrants(40, 30);
  const auto jpeg = toJpeg(pngOf(40, 30, PNG_FORMAT_RGB, source.rgb.data()), 100, nullptr);
  ASSERT_TRUE(jpeg && jpeg->size() > 2 && (*jpeg)[0] == 0xFF && (*jpeg)[1] == 0xD8);
  expectQuarters(*decodeImage(*jpeg, nullptr), {kRed, kGreen, kBlue, kWhite});
}

}  // namespace
}  // namespace lad::platform::test
