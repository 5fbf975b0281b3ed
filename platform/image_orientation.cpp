#include "platform/image_orientation.h"

#include <algorithm>

namespace lad::platform {

namespace {

struct Point {
  int x;
  int y;
};

// Where the shown pixel (x, y) lies in the stored w x h image.
Point storedPixel(int orientation, int x, int y, int w, int h) {
  switch (orientation) {
    case 2:  // mirrored left to right
      return {w - 1 - x, y};
    case 3:  // turned half round
      return {w - 1 - x, h - 1 - y};
    case 4:  // mirrored top to bottom
      return {x, h - 1 - y};
    case 5:  // mirrored across the main diagonal
      return {y, x};
    case 6:  // stored a quarter turn anticlockwise: shown turned clockwise
      return {y, h - 1 - x};
    case 7:  // mirrored across the other diagonal
      return {w - 1 - y, h - 1 - x};
    case 8:  // stored a quarter turn clockwise: shown turned anticlockwise
      return {w - 1 - y, x};
    default:
      return {x, y};
  }
}

}  // namespace

Image orientedUpright(Image image, int orientation) {
  if (orientation < 2 || orientation > 8) return image;
  const bool swapsSides = orientation >= 5;
  Image shown{swapsSides ? image.height : image.width, swapsSides ? image.width : image.height,
              std::vector<std::uint8_t>(image.rgb.size())};
  for (int y = 0; y < shown.height; ++y) {
    for (int x = 0; x < shown.width; ++x) {
      const Point from = storedPixel(orientation, x, y, image.width, image.height);
      const std::size_t source = (std::size_t(from.y) * image.width + from.x) * 3;
      const std::size_t target = (std::size_t(y) * shown.width + x) * 3;
      std::copy_n(image.rgb.begin() + source, 3, shown.rgb.begin() + target);
    }
  }
  return shown;
}

}  // namespace lad::platform
