// The parts of a line chart around its series: captions, the picture with its call-outs, axis
// ticks and grid, the bottom line, the marks of `Points` and the legend.
#pragma once

#include <filesystem>

#include "charts/graph_layout.h"
#include "drawing/canvas.h"

namespace lad::charts {

struct GraphContext {
  drawing::Canvas& canvas;
  const Map& dic;
  GraphLayout layout;
  GraphScale scale;
  std::filesystem::path imagesDir;
};

void drawCaptions(const GraphContext& g);
void drawMainImage(const GraphContext& g);
void drawAxisTicks(const GraphContext& g);
void drawBottomLine(const GraphContext& g);
void drawPointMarks(const GraphContext& g);
void drawLegend(const GraphContext& g);

}  // namespace lad::charts
