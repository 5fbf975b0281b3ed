#include "charts/cards.h"

namespace lad::charts {

void drawRoundCard(drawing::Canvas& c, drawing::Rect r, drawing::Color color, double s) {
  c.fillPath(drawing::Path().addRoundedRect(r, 2 * s), color);
}

void drawChatCard(drawing::Canvas& c, drawing::Rect r, bool withTop, bool withBottom, double s) {
  const double radius = 4 * s;
  const drawing::Color white{1, 1, 1, 1};
  c.fillPath(drawing::Path().addRoundedRect(r, radius), {0.98, 0.98, 0.98, 1});
  if (!withTop) {
    c.fillRect({r.x, r.y, radius, radius}, white);
    c.fillRect({r.right() - radius, r.y, radius, radius}, white);
  }
  if (!withBottom) {
    c.fillRect({r.x, r.bottom() - radius, radius, radius}, white);
    c.fillRect({r.right() - radius, r.bottom() - radius, radius, radius}, white);
  }
  c.strokePath(
      drawing::Path().moveTo({r.x, r.bottom() - 0.5}).lineTo({r.right(), r.bottom() - 0.5}),
      {0.9, 0.9, 0.9, 1}, 1);
}

}  // namespace lad::charts
