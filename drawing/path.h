// A figure to fill, stroke or clip by: moves, straight lines, circular arcs and closes.
#pragma once

#include <vector>

#include "drawing/geometry.h"

namespace lad::drawing {

class Path {
 public:
  enum class Kind { Move, Line, Arc, ArcNegative, Close };
  // Move and Line use `to`; Arc uses centre, radius and the angles in radians, clockwise on
  // screen (y down) from start to end; ArcNegative the same counter-clockwise.
  struct Op {
    Kind kind;
    Point to;
    double radius = 0, start = 0, end = 0;
    bool operator==(const Op&) const = default;
  };

  Path& moveTo(Point p);
  Path& lineTo(Point p);
  Path& arc(Point centre, double radius, double start, double end);
  Path& arcNegative(Point centre, double radius, double start, double end);
  Path& close();
  Path& addRect(Rect r);
  Path& addCircle(Point centre, double radius);
  Path& addRoundedRect(Rect r, double radius);

  const std::vector<Op>& ops() const { return ops_; }
  bool empty() const { return ops_.empty(); }
  bool operator==(const Path&) const = default;

 private:
  std::vector<Op> ops_;
};

}  // namespace lad::drawing
