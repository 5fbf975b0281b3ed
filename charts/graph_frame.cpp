// Captions, ticks, grid and the bottom line of a line chart.
#include "charts/chart_text.h"
#include "charts/graph_parts.h"
#include "charts/palette.h"
#include "charts/plot_scale.h"
#include "drawing/text_measure.h"

namespace lad::charts {

void drawCaptions(const GraphContext& g) {
  const drawing::Font font{11 * g.scale.z, false};
  const drawing::Color color = colorFrom(g.dic["textColor"]);
  const drawing::Rect& f = g.layout.frame;
  const std::string caption = g.dic["caption"].text();
  if (!caption.empty()) drawCentredText(g.canvas, caption, font, color, f.centre().x, f.y);
  const std::string bottom = g.dic["bottomCaption"].text();
  if (!bottom.empty())
    drawCentredText(g.canvas, bottom, font, color, f.centre().x, f.bottom() - 12 * g.scale.s);
}

void drawAxisTicks(const GraphContext& g) {
  const List* ticks = g.dic["xAxisValue"].asList();
  if (!ticks) return;
  const AxisRange range = AxisRange::of(g.dic);
  const drawing::Rect& plot = g.layout.plot;
  const drawing::Font font{9 * g.scale.z, false};
  const drawing::Color text = colorFrom(g.dic["textColor"]);
  const drawing::Color grid = colorFrom(g.dic["backColor"]);
  const bool setka = g.dic["setka"].boolValue();
  for (const auto& tick : *ticks) {
    const double x = valueToPoint(range, plot, tick["pos"].doubleValue(), range.minY).x;
    const std::string label = tick["label"].text();
    if (!label.empty()) drawCentredText(g.canvas, label, font, text, x, plot.bottom());
    if (setka)
      g.canvas.strokePath(drawing::Path().moveTo({x, plot.bottom()}).lineTo({x, plot.y}), grid, 1);
  }
}

void drawBottomLine(const GraphContext& g) {
  const auto thickness = g.dic["bottomLine"].intValue();
  if (thickness < 1) return;
  const drawing::Rect& plot = g.layout.plot;
  const double h = static_cast<double>(thickness) * g.scale.z;
  const double lower = thickness == 1 ? 0.5 : 0;
  g.canvas.fillRect({plot.x, plot.bottom() - h + lower, plot.w, h},
                    colorFrom(g.dic["textColor"]).withAlpha(0.5));
}

}  // namespace lad::charts
