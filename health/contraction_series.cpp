#include "health/contraction_series.h"

#include <algorithm>
#include <cmath>

#include "charts/chart_dictionary.h"
#include "charts/palette.h"
#include "health/contraction_period.h"

namespace lad::health {

namespace {

constexpr double kSeriesBreak = 3600;

void appendPoint(List& series, double y) {
  charts::addPoint(series, static_cast<double>(series.size() + 1), y,
                   cperiod(static_cast<std::int64_t>(y)));
}

// Sets yAxisMin and yAxisMax from the points' values; no points reads as 0 to 1.
void scaleY(Map& dic, const List& points) {
  double lo = 0, hi = 1;
  for (std::size_t i = 0; i < points.size(); ++i) {
    const double y = points[i]["y"].doubleValue();
    lo = i == 0 ? y : std::min(lo, y);
    hi = i == 0 ? y : std::max(hi, y);
  }
  if (lo > 0 && lo - 0.1 * (hi - lo) >= 0) lo -= 0.1 * (hi - lo);
  hi += 0.1 * (hi - lo);
  if (lo == hi) {
    lo -= 1;
    hi += 1;
  }
  dic.set("yAxisMin", lo);
  dic.set("yAxisMax", hi);
}

}  // namespace

ContractionSeries buildSeries(const std::vector<Contraction>& contractions) {
  ContractionSeries s;
  for (std::size_t i = 0; i < contractions.size(); ++i) {
    if (i > 0) {
      const auto gap =
          std::chrono::duration<double>(contractions[i].start - contractions[i - 1].end);
      appendPoint(s.intervals, std::floor(gap.count()));
      if (gap.count() > kSeriesBreak) s = {};
    }
    appendPoint(s.durations, static_cast<double>(contractions[i].len));
  }
  return s;
}

Map contractionChart(const List& points, const std::string& bottomCaption, bool darkIcons) {
  Map dic;
  charts::initGraphDic(dic);
  dic.set("bottomCaption", bottomCaption);
  dic.set("isBorders", true);
  dic.set("Graph1", points);
  dic.set("Graph1Type", "5");
  // The labels take the screen's text colour, so that they show on either theme.
  charts::setThemeColors(dic, darkIcons, {0.9, 0.9, 0.9, 1});
  scaleY(dic, points);
  dic.set("xAxisMin", 0);
  dic.set("xAxisMax", static_cast<double>(points.size() + 1));
  return dic;
}

}  // namespace lad::health
