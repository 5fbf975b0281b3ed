#include "reports/picture_fill.h"

#include <algorithm>

#include "reports/picture_size.h"

namespace lad::reports {

drawing::Rect fillingRect(double width, double height, drawing::Rect area) {
  const double scale = std::max(area.w / width, area.h / height);
  const double w = width * scale, h = height * scale;
  const drawing::Point middle = area.centre();
  return {middle.x - w / 2, middle.y - h / 2, w, h};
}

bool drawPictureFilling(drawing::Canvas& canvas, const std::string& file, drawing::Rect area,
                        const drawing::Path& clip) {
  const auto size = pictureSize(file);
  if (!size) return false;
  canvas.drawClippedImage(file, fillingRect(size->width, size->height, area),
                          clip.empty() ? drawing::Path().addRect(area) : clip);
  return true;
}

}  // namespace lad::reports
