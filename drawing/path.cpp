#include "drawing/path.h"

#include <numbers>

namespace lad::drawing {

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

Path& Path::arcNegative(Point centre, double radius, double start, double end) {
  ops_.push_back({Kind::ArcNegative, centre, radius, start, end});
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

Path& Path::addRoundedRect(Rect r, double radius) {
  constexpr double kQuarter = std::numbers::pi / 2;
  moveTo({r.x + radius, r.y}).lineTo({r.right() - radius, r.y});
  arc({r.right() - radius, r.y + radius}, radius, -kQuarter, 0);
  lineTo({r.right(), r.bottom() - radius});
  arc({r.right() - radius, r.bottom() - radius}, radius, 0, kQuarter);
  lineTo({r.x + radius, r.bottom()});
  arc({r.x + radius, r.bottom() - radius}, radius, kQuarter, 2 * kQuarter);
  lineTo({r.x, r.y + radius});
  return arc({r.x + radius, r.y + radius}, radius, 2 * kQuarter, 3 * kQuarter).close();
}

}  // namespace lad::drawing
