#include "drawing/path.h"

#include <numbers>

namespace lad::draw {

Path& Path::moveTo(Point p) {
  ops_.push_back({Kind::Move, p});
  return *this;
}

Path& Path::lineTo(Point p) {
  ops_.push_back({Kind::Line, p});
  return *this;
}

Path& Path::arc(Point centre, double radius, double start, double end) {
  ops_.push_back({Kind::Arc, centre, radius, start, end});
  return *this;
}

Path& Path::close() {
  ops_.push_back({Kind::Close, {}});
  return *this;
}

Path& Path::addRect(Rect r) {
  return moveTo({r.x, r.y})
      .lineTo({r.right(), r.y})
      .lineTo({r.right(), r.bottom()})
      .lineTo({r.x, r.bottom()})
      .close();
}

Path& Path::addCircle(Point centre, double radius) {
  moveTo({centre.x + radius, centre.y});
  return arc(centre, radius, 0, 2 * std::numbers::pi).close();
}

}  // namespace lad::draw
