#include <gtest/gtest.h>

#include "image_samples.h"
#include "platform/images.h"

namespace lad::platform::test {
namespace {

Image grey(int width, int height, std::vector<std::uint8_t> levels) {
  Image image{width, height, {}};
  for (std::uint8_t level : levels) image.rgb.insert(image.rgb.end(), {level, level, level});
  return image;
}

TEST(ScaledToFit, KeepsTheAspectAveragesTheCoveredAreaAndLeavesSmallImages) {
  const auto size = [](const Image& image) {
    return std::to_string(image.width) + "x" + std::to_string(image.height) + " " +
           std::to_string(image.rgb.size() / 3);
  };
  EXPECT_EQ(size(scaledToFit(quadrants(30, 61), 40)), "20x40 800");
  EXPECT_EQ(size(scaledToFit(quadrants(400, 2), 100)), "100x1 100");
  const Image small = quadrants(50, 20);
  EXPECT_EQ(scaledToFit(small, 50).rgb, small.rgb);
  EXPECT_EQ(scaledToFit(grey(3, 1, {0, 90, 180}), 2).rgb, grey(2, 1, {30, 150}).rgb);
  EXPECT_EQ(scaledToFit(grey(2, 2, {0, 255, 255, 0}), 1).rgb, grey(1, 1, {128}).rgb);
}

TEST(DecodeImageToFit, ShrinksALargeJpegToTheSideItIsAskedFor) {
  const auto jpeg = encodeJpeg(quadrants(1600, 1200), 90);
  const auto fitted = decodeImageToFit(jpeg, 300, nullptr);
  ASSERT_TRUE(fitted);
  EXPECT_EQ(std::pair(fitted->width, fitted->height), std::pair(300, 225));
  expectQuarters(*fitted, {kRed, kGreen, kBlue, kWhite});
  // A turned photo keeps its upright shape.
  const auto turned = decodeImageToFit(withExifOrientation(jpeg, 6, false), 300, nullptr);
  ASSERT_TRUE(turned);
  EXPECT_EQ(std::pair(turned->width, turned->height), std::pair(225, 300));
  // The sizes as the header tells them, the orientation applied.
  EXPECT_EQ(imageSize(withExifOrientation(jpeg, 6, true)), (ImageSize{1200, 1600}));
  EXPECT_FALSE(imageSize(std::vector<std::uint8_t>(jpeg.begin(), jpeg.begin() + 4)));
  std::string error;
  EXPECT_FALSE(decodeImageToFit(std::vector<std::uint8_t>{1, 2, 3}, 100, &error));
  EXPECT_FALSE(error.empty());
}

}  // namespace
}  // namespace lad::platform::test
