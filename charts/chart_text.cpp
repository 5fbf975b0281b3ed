#include "charts/chart_text.h"

#include "drawing/text_measure.h"

namespace lad::charts {

void drawCentredText(draw::Canvas& c, std::string_view text, draw::Font f, draw::Color color,
                     double cx, double top) {
  const draw::Size size = draw::measureText(text, f);
  c.drawText(text, {cx - size.w / 2, top, size.w, size.h}, f, color, draw::Align::Center);
}

void drawTextAround(draw::Canvas& c, std::string_view text, draw::Font f, draw::Color color,
                    draw::Point centre) {
  const draw::Size size = draw::measureText(text, f);
  c.drawText(text, {centre.x - size.w / 2, centre.y - size.h / 2, size.w, size.h}, f, color,
             draw::Align::Center);
}

}  // namespace lad::charts
