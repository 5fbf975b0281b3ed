// The picture "Развитие плода" of the title page: the baby's growth over the weeks of the
// pregnancy, with the flames that open the three trimesters, the marker of today and, from week
// 8 to week 40, the balloon with the baby's present weight and length.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "core/value.h"
#include "drawing/canvas.h"

namespace lad {
class Context;
}  // namespace lad

namespace lad::health {

struct DevelopmentInput {
  int day;                      // the day of the pregnancy, 1 on its first day
  std::optional<int> birthDay;  // the birth's day from the first day, when recorded
  double s;                     // the device scale
  bool darkIcons;               // the theme's dark pictures and text
};

// The chart's own dictionary: the picture over the days with the week ticks.
Map developmentChart(const Context& context, const DevelopmentInput& input);

// Paints the chart and its marks into the frame.
void drawDevelopment(drawing::Canvas& c, drawing::Rect frame, const Context& context,
                     const DevelopmentInput& input, const std::filesystem::path& imagesDir);

}  // namespace lad::health
