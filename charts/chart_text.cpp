#include "charts/chart_text.h"

#include "drawing/text_measure.h"

namespace lad::charts {

void drawCentredText(drawing::Canvas& c, std::string_view text, drawing::Font f,
                     drawing::Color color, double cx, double top) {
  const drawing::Size size = drawing::measureText(text, f);
  c.drawText(text, {cx - size.w / 2, top, size.w, size.h}, f, color, drawing::Align::Center);
}

void drawTextAround(drawing::Canvas& c, std::string_view text, drawing::Font f,
                    drawing::Color color, drawing::Point centre) {
  const drawing::Size size = drawing::measureText(text, f);
  c.drawText(text, {centre.x - size.w / 2, centre.y - size.h / 2, size.w, size.h}, f, color,
             drawing::Align::Center);
}

}  // namespace lad::charts
