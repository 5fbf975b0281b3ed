#include "health/weight_chart.h"

#include <algorithm>

#include "charts/chart.h"
#include "charts/chart_dictionary.h"
#include "charts/palette.h"
#include "core/context.h"
#include "health/growth_series.h"
#include "store/setup_data.h"
#include "store/store.h"

namespace lad::health {

namespace {

constexpr int kLastWeek = 42;
constexpr int kDaysShown = 295;  // days 0 to 294
constexpr double kBookZoom = 5;
constexpr drawing::Color kGainColor{0.8, 0, 0, 0.6};
constexpr drawing::Color kBlue{0.494, 0.675, 0.8, 1};
constexpr drawing::Color kWhite{1, 1, 1, 1};

// A tick at every week, labelled at the even ones.
List evenWeekTicks() {
  List ticks;
  for (int week = 0; week <= kLastWeek; ++week) {
    Map tick;
    tick.set("pos", 7 * week);
    tick.set("label", week % 2 == 0 ? std::to_string(week) : std::string());
    ticks.push_back(std::move(tick));
  }
  return ticks;
}

struct Series {
  List points;
  double least = 0;    // the least value drawn, or 0 when that is lower
  double largest = 0;  // the largest value, drawn or not
};

Series normSeries(std::int64_t bodytype) {
  Series norm;
  for (const WeekPoint& p : fillWomanVes(bodytype)) {
    charts::addPoint(norm.points, 7.0 * p.week, p.y, p.label);
    norm.largest = std::max(norm.largest, p.y);
  }
  return norm;
}

Series gainSeries(Store& store, const std::string& pregguid, const Map& setup) {
  const OwnGain gain = initWomanData(store, pregguid, setup);
  Series own{{}, 0, gain.largest};
  const auto dat1 = setup["dat1"].asDate();
  if (!dat1) return own;
  for (const GainPoint& p : gain.points) {
    const int day = store.context().dates().getDays(*dat1, p.dat);
    if (day >= kDaysShown) continue;
    own.least = std::min(own.least, p.value);
    charts::addPoint(own.points, day, p.value);
  }
  return own;
}

}  // namespace

Map weightChart(Store& store, const std::string& pregguid, const Map& setup, double zoom) {
  Map dic;
  charts::initGraphDic(dic);
  dic.set("xAxisValue", evenWeekTicks());
  dic.set("xAxisMax", kDaysShown - 1);
  Series norm = normSeries(setup["bodytype"].intValue());
  Series own = gainSeries(store, pregguid, setup);
  dic.set("yAxisMin", own.least);
  dic.set("yAxisMax", std::max(norm.largest, own.largest));
  dic.set("Graph1", std::move(norm.points));
  dic.set("Graph2", std::move(own.points));
  dic.set("Graph2Type", "5");
  dic.set("Graph2Color", charts::colorValue(kGainColor));
  dic.set("mainColor", charts::colorValue(kWhite));
  dic.set("backColor", charts::colorValue(kBlue));
  dic.set("backgroundColor", charts::colorValue(kBlue));
  dic.set("textColor", charts::colorValue(kWhite));
  dic.set("isBorders", true);
  dic.set("setka", true);
  dic.set("zoom", zoom);
  dic.set("mainImageBackgroud", true);
  return dic;
}

std::optional<std::string> bookPageGraph(Store& store, const std::string& pregguid,
                                         drawing::Size size, double scale,
                                         const std::filesystem::path& imagesDir) {
  // The book's own render scale is the zoom, so that the margins hold the larger texts.
  charts::Chart chart(kBookZoom, imagesDir);
  chart.prepare(weightChart(store, pregguid, loadSetupData(store, pregguid), kBookZoom));
  return chart.getContextImage(size, scale);
}

}  // namespace lad::health
