#include "charts/cards.h"

namespace lad::charts {

void drawRoundCard(draw::Canvas& c, draw::Rect r, draw::Color color, double s) {
  c.fillPath(draw::Path().addRoundedRect(r, 2 * s), color);
}

void drawChatCard(draw::Canvas& c, draw::Rect r, bool withTop, bool withBottom, double s) {
  const double radius = 4 * s;
  const draw::Color white{1, 1, 1, 1};
  c.fillPath(draw::Path().addRoundedRect(r, radius), {0.98, 0.98, 0.98, 1});
  if (!withTop) {
    c.fillRect({r.x, r.y, radius, radius}, white);
    c.fillRect({r.right() - radius, r.y, radius, radius}, white);
  }
  if (!withBottom) {
    c.fillRect({r.x, r.bottom() - radius, radius, radius}, white);
    c.fillRect({r.right() - radius, r.bottom() - radius, radius, radius}, white);
  }
  c.strokePath(draw::Path().moveTo({r.x, r.bottom() - 0.5}).lineTo({r.right(), r.bottom() - 0.5}),
               {0.9, 0.9, 0.9, 1}, 1);
}

}  // namespace lad::charts
