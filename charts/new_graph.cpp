#include "charts/new_graph.h"

#include <string>

#include "charts/graph_parts.h"
#include "charts/line_series.h"
#include "charts/palette.h"
#include "charts/ring_chart.h"

namespace lad::charts {

namespace {

int seriesType(const Map& dic, const std::string& name) {
  const Value* type = dic.find(name + "Type");
  return type ? static_cast<int>(type->intValue()) : 3;
}

drawing::Color seriesColor(const Map& dic, int n) {
  return colorFrom(n == 1 ? dic["mainColor"] : dic["Graph" + std::to_string(n) + "Color"]);
}

void drawSeries(const GraphContext& g) {
  for (int n = 1; n <= 3; ++n) {
    const std::string name = "Graph" + std::to_string(n);
    const List* points = g.dic[name].asList();
    if (!points) continue;
    const int type = seriesType(g.dic, name);
    if (type == 9) {
      drawNewChart(g.canvas, *points, g.layout.plot, g.scale.z);
      continue;
    }
    const SeriesStyle style{type, seriesColor(g.dic, n), colorFrom(g.dic["backColor"]),
                            colorFrom(g.dic["textColor"]), g.scale.z};
    drawNewLine(g.canvas, *points, AxisRange::of(g.dic), g.layout.plot, style);
  }
}

}  // namespace

void drawNewGraph(drawing::Canvas& c, const Map& dic, drawing::Rect r, double s,
                  const std::filesystem::path& imagesDir) {
  c.clear(r);
  if (dic.contains("backgroundColor")) c.fillRect(r, colorFrom(dic["backgroundColor"]));
  const GraphContext g{c, dic, GraphLayout::of(dic, r, s), GraphScale::of(dic, s), imagesDir};
  drawCaptions(g);
  drawMainImage(g);
  drawAxisTicks(g);
  drawBottomLine(g);
  drawSeries(g);
  drawPointMarks(g);
  drawLegend(g);
}

}  // namespace lad::charts
