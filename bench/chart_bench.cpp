// Rendering a contraction chart of 300 points to SVG, as the counter's page asks for it.
#include <benchmark/benchmark.h>

#include <cmath>

#include "charts/chart.h"
#include "charts/chart_dictionary.h"
#include "charts/palette.h"

namespace {

lad::Map chartOf300Points() {
  lad::Map dic;
  lad::charts::initGraphDic(dic);
  lad::List points;
  for (int i = 1; i <= 300; ++i) {
    const double y = 300 + 200 * std::sin(i / 10.0);
    lad::charts::addPoint(points, i, y, std::to_string(static_cast<int>(y)));
  }
  dic.set("Graph1", points);
  dic.set("Graph1Type", "5");
  dic.set("isBorders", true);
  dic.set("xAxisMax", 301);
  dic.set("yAxisMax", 550);
  dic.set("yAxisMin", 50);
  dic.set("mainColor", lad::charts::colorValue({0.7, 0, 0, 1}));
  dic.set("textColor", lad::charts::colorValue({0, 0, 0, 1}));
  dic.set("bottomCaption", "График интервалов между схватками");
  return dic;
}

void BM_ChartToSvg300Points(benchmark::State& state) {
  lad::charts::Chart chart(1.2, "");
  chart.prepare(chartOf300Points());
  for (auto _ : state) benchmark::DoNotOptimize(chart.svg({384, 200}));
}
BENCHMARK(BM_ChartToSvg300Points)->Unit(benchmark::kMillisecond);

}  // namespace
