// The chart dictionaries of the baby's growth on the title page: the length and the weight by
// week over the days of the pregnancy, with the ultrasound measurements as marks.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/value.h"
#include "health/growth_series.h"

namespace lad::health {

enum class GrowthMeasure { Length, Weight };

struct GrowthChartInput {
  GrowthMeasure measure;
  std::string caption;  // translated
  std::vector<UltrasoundPoint> ultrasound;
  std::optional<int> birthDay;  // the day of the birth from the first day, when recorded
  bool darkIcons = false;
};

// What the three charts of the title page share: the caption, the axis over 294 days (or up to
// the birth) with the week at every third week from 4, and the theme's colours.
Map titleChart(const std::string& caption, std::optional<int> birthDay, bool darkIcons);

// The axis runs over 294 days (or up to the birth) with the week at every third week from 4,
// and from 0 to 570 mm or 3900 g, raised to the largest measurement; only measurements above
// 0 are marked.
Map growthChart(const GrowthChartInput& input);

}  // namespace lad::health
