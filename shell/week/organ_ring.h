// The ring of the baby page: each organ's own small ring round the big one, filled as far as the
// organ has developed, with a tick once it is complete.
#pragma once

#include <span>
#include <string>

#include "drawing/canvas.h"

namespace lad::shell {

struct OrganArc {
  std::string caption;
  int degrees = 0;  // 0 to 360
};

void drawOrganRing(drawing::Canvas& c, drawing::Rect r, std::span<const OrganArc> organs,
                   double scale);

}  // namespace lad::shell
