#include "health/growth_charts.h"

#include <algorithm>

#include "charts/chart_dictionary.h"
#include "charts/palette.h"

namespace lad::health {

namespace {

constexpr int kPregnancyDays = 294;
constexpr int kLastWeek = 42;
constexpr double kLengthFloor = 570, kWeightFloor = 3900;

List weekTicks() {
  List ticks;
  for (int week = 0; week <= kLastWeek; ++week) {
    Map tick;
    tick.set("pos", 7 * week);
    const bool labelled = week >= 4 && week <= 40 && (week - 4) % 3 == 0;
    tick.set("label", labelled ? std::to_string(week) : std::string());
    ticks.push_back(std::move(tick));
  }
  return ticks;
}

}  // namespace

Map titleChart(const std::string& caption, std::optional<int> birthDay, bool darkIcons) {
  Map dic;
  charts::initGraphDic(dic);
  dic.set("caption", caption);
  dic.set("isBorders", true);
  dic.set("xAxisMin", 0);
  dic.set("xAxisMax", std::min(kPregnancyDays, birthDay.value_or(kPregnancyDays)));
  dic.set("xAxisValue", weekTicks());
  charts::setThemeColors(dic, darkIcons, {0.6, 0.6, 0.6, 1});
  return dic;
}

Map growthChart(const GrowthChartInput& input) {
  const bool length = input.measure == GrowthMeasure::Length;
  Map dic = titleChart(input.caption, input.birthDay, input.darkIcons);
  List curve;
  for (const WeekPoint& p : length ? fillRost() : fillVes())
    charts::addPoint(curve, 7.0 * p.week, p.y, p.label);
  dic.set("Graph1", std::move(curve));
  dic.set("Graph1Type", "5");
  double top = length ? kLengthFloor : kWeightFloor;
  List marks;
  for (const UltrasoundPoint& u : input.ultrasound) {
    const std::string& text = length ? u.rost : u.ves;
    const double value = leadingDouble(text);
    if (value <= 0) continue;
    top = std::max(top, value);
    Map mark;
    mark.set("x", u.day);
    mark.set("y", text);
    mark.set("label", text);
    marks.push_back(std::move(mark));
  }
  dic.set("Points", std::move(marks));
  dic.set("yAxisMin", 0);
  dic.set("yAxisMax", top);
  return dic;
}

}  // namespace lad::health
