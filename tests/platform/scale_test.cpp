#include <gtest/gtest.h>

#include "image_samples.h"
#include "platform/images.h"

namespace lad::test {
namespace {

Image grey(int width, int height, std::vector<std::uint8_t> levels) {
  Image image{width, height, {}};
  for (std::uint8_t level : levels) image.rgb.insert(image.rgb.end(), {level, level, level});
  return image;
}

TEST(ScaledToFit, KeepsTheAspectAndLeavesSmallImages) {
  const Image wide = scaledToFit(quadrants(1000, 500), 100);
  EXPECT_EQ(wide.width, 100);
  EXPECT_EQ(wide.height, 50);
  EXPECT_EQ(wide.rgb.size(), 100u * 50 * 3);
  const Image tall = scaledToFit(quadrants(30, 61), 40);
  EXPECT_EQ(tall.width, 20);
  EXPECT_EQ(tall.height, 40);
  const Image thin = scaledToFit(quadrants(400, 2), 100);
  EXPECT_EQ(thin.width, 100);
  EXPECT_EQ(thin.height, 1);
  const Image small = quadrants(50, 20);
  EXPECT_EQ(scaledToFit(small, 50).rgb, small.rgb);
}

TEST(ScaledToFit, AveragesTheCoveredArea) {
  EXPECT_EQ(scaledToFit(grey(3, 1, {0, 90, 180}), 2).rgb, grey(2, 1, {30, 150}).rgb);
  EXPECT_EQ(scaledToFit(grey(2, 2, {0, 255, 255, 0}), 1).rgb, grey(1, 1, {128}).rgb);
  EXPECT_EQ(scaledToFit(grey(4, 2, {0, 0, 255, 255, 0, 0, 255, 255}), 2).rgb,
            grey(2, 1, {0, 255}).rgb);
  const Image colours = scaledToFit(quadrants(64, 64), 2);
  EXPECT_EQ(colours.rgb,
            (std::vector<std::uint8_t>{255, 0, 0, 0, 255, 0, 0, 0, 255, 255, 255, 255}));
}

}  // namespace
}  // namespace lad::test
