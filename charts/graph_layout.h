// Where the parts of a line chart go inside its rectangle.
#pragma once

#include "core/value.h"
#include "drawing/geometry.h"

namespace lad::charts {

// The device scale s and the drawing scale z (the dictionary's `zoom`, else s).
struct GraphScale {
  double s = 1, z = 1;
  static GraphScale of(const Map& dic, double s);
};

struct GraphLayout {
  drawing::Rect frame;  // the whole rectangle
  drawing::Rect plot;   // where values are drawn
  static GraphLayout of(const Map& dic, drawing::Rect frame, double s);
};

}  // namespace lad::charts
