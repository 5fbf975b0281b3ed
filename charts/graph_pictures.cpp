// The pictures of a line chart: the main picture with its call-outs, the bubbles of `Points`
// and the legend.
#include <algorithm>

#include "charts/chart_text.h"
#include "charts/graph_parts.h"
#include "charts/palette.h"
#include "charts/plot_scale.h"
#include "drawing/image_size.h"
#include "drawing/text_measure.h"

namespace lad::charts {

namespace {

drawing::Rect fitInto(drawing::Size natural, drawing::Rect box) {
  const double k = std::min(box.w / natural.w, box.h / natural.h);
  const drawing::Size size{natural.w * k, natural.h * k};
  return {box.x + (box.w - size.w) / 2, box.y + (box.h - size.h) / 2, size.w, size.h};
}

// A rounded call-out beside the point, moved back inside the frame when it would leave it.
void drawHint(const GraphContext& g, const std::string& hint, drawing::Point at) {
  const double z = g.scale.z;
  const drawing::Font font{7 * z, false};
  const drawing::Size text = drawing::measureText(hint, font);
  const double pad = 3 * z;
  const drawing::Rect& f = g.layout.frame;
  drawing::Rect box{at.x + 4 * z, at.y - text.h / 2 - pad, text.w + 2 * pad, text.h + 2 * pad};
  box.x = std::clamp(box.x, f.x, std::max(f.x, f.right() - box.w));
  box.y = std::clamp(box.y, f.y, std::max(f.y, f.bottom() - box.h));
  g.canvas.fillPath(drawing::Path().addRoundedRect(box, pad), {1, 1, 1, 0.85});
  g.canvas.drawText(hint, {box.x + pad, box.y + pad, text.w, text.h}, font,
                    colorFrom(g.dic["textColor"]), drawing::Align::Left);
}

}  // namespace

void drawMainImage(const GraphContext& g) {
  const std::string name = g.dic["mainImage"].text();
  if (name.empty()) return;
  const std::string file = (g.imagesDir / name).string();
  const auto natural = drawing::pngSize(file);
  if (!natural || natural->w <= 0 || natural->h <= 0) return;
  const drawing::Rect image = fitInto(*natural, g.layout.plot);
  g.canvas.drawImage(file, image);
  const List* hints = g.dic["ImageHints"].asList();
  if (!hints) return;
  const double k = image.w / natural->w;
  for (const auto& h : *hints)
    drawHint(g, h["hint"].text(),
             {image.x + h["x"].doubleValue() * k, image.y + h["y"].doubleValue() * k});
}

void drawPointMarks(const GraphContext& g) {
  const List* points = g.dic["Points"].asList();
  if (!points) return;
  const AxisRange range = AxisRange::of(g.dic);
  const double s = g.scale.s;
  const std::string file = (g.imagesDir / "baloon-uzi.png").string();
  for (const auto& p : *points) {
    const drawing::Point at =
        valueToPoint(range, g.layout.plot, p["x"].doubleValue(), p["y"].doubleValue());
    g.canvas.drawImage(file, {at.x - 10 * s, at.y - 25 * s, 20 * s, 25 * s});
    drawTextAround(g.canvas, p["label"].text(), {9 * g.scale.z, false},
                   colorFrom(g.dic["textColor"]), {at.x, at.y - 15 * s});
  }
}

void drawLegend(const GraphContext& g) {
  const List* rows = g.dic["Legenda"].asList();
  if (!rows) return;
  const double z = g.scale.z;
  const drawing::Font font{12 * z, false};
  const drawing::Rect& f = g.layout.frame;
  const drawing::Color text = colorFrom(g.dic["textColor"]);
  const double square = 8 * z, gap = 4 * z;
  double x = g.layout.plot.x, y = g.layout.plot.bottom() + gap;
  for (const auto& row : *rows) {
    const std::string caption = row["caption"].text();
    const drawing::Size size = drawing::measureText(caption, font);
    const bool checked = row["checked"].boolValue();
    const double width = square + gap + size.w + (checked ? gap + size.h : 0) + 2 * gap;
    if (x > g.layout.plot.x && x + width > f.right()) {
      x = g.layout.plot.x;
      y += size.h;
    }
    const auto pos = static_cast<int>(row["pos"].intValue());
    g.canvas.fillRect({x, y + (size.h - square) / 2, square, square}, nextColor(pos));
    g.canvas.drawText(caption, {x + square + gap, y, size.w, size.h}, font, text,
                      drawing::Align::Left);
    if (checked)
      g.canvas.drawImage((g.imagesDir / "cap-down.png").string(),
                         {x + square + 2 * gap + size.w, y, size.h, size.h});
    x += width;
  }
}

}  // namespace lad::charts
