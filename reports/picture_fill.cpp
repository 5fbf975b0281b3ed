#include "reports/picture_fill.h"

#include <algorithm>

#include "reports/picture_size.h"

namespace lad::report {

draw::Rect fillingRect(double width, double height, draw::Rect area) {
  const double scale = std::max(area.w / width, area.h / height);
  const double w = width * scale, h = height * scale;
  const draw::Point middle = area.centre();
  return {middle.x - w / 2, middle.y - h / 2, w, h};
}

bool drawPictureFilling(draw::Canvas& canvas, const std::string& file, draw::Rect area,
                        const draw::Path& clip) {
  const auto size = pictureSize(file);
  if (!size) return false;
  canvas.drawClippedImage(file, fillingRect(size->width, size->height, area),
                          clip.empty() ? draw::Path().addRect(area) : clip);
  return true;
}

}  // namespace lad::report
