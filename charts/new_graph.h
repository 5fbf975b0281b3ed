// A line or ring chart drawn from a chart dictionary.
#pragma once

#include <filesystem>

#include "core/value.h"
#include "drawing/canvas.h"

namespace lad::charts {

// s is the device scale; pictures are read from imagesDir.
void drawNewGraph(drawing::Canvas& c, const Map& dic, drawing::Rect r, double s,
                  const std::filesystem::path& imagesDir);

}  // namespace lad::charts
