#include "health/contraction_series.h"

#include <gtest/gtest.h>

#include "health/contraction_period.h"
#include "tests/health/contraction_samples.h"

namespace lad::health {
namespace {

using lad::testing::withPauses;

const Date kFirst = *dateFromIso("2026-03-30T08:00:00Z");

std::vector<double> ys(const List& points) {
  std::vector<double> out;
  for (const auto& p : points) out.push_back(p["y"].doubleValue());
  return out;
}

TEST(ContractionPeriod, MinutesAndSecondsKeepTwoDigits) {
  EXPECT_EQ(cperiod(5999), "99:59");
  EXPECT_EQ(cperiod(6000), "00:00");
  EXPECT_EQ(cperiod(36000 + 61), "01:01");
}

TEST(ContractionSeries, PointsAndTheHourBreak) {
  auto s = buildSeries(withPauses(kFirst, {600, 3600, 500}, 45));
  EXPECT_EQ(ys(s.intervals), (std::vector<double>{600, 3600, 500}));
  EXPECT_EQ(ys(s.durations), (std::vector<double>{45, 45, 45, 45}));
  EXPECT_EQ(s.intervals[2]["x"].doubleValue(), 3);
  EXPECT_EQ(s.intervals[0]["label"].text(), "10:00");

  // Past an hour both series start again from the contraction after the pause.
  s = buildSeries(withPauses(kFirst, {600, 3601, 500}, 45));
  EXPECT_EQ(ys(s.intervals), (std::vector<double>{500}));
  EXPECT_EQ(s.intervals[0]["x"].doubleValue(), 1);
  EXPECT_EQ(ys(s.durations), (std::vector<double>{45, 45}));
  EXPECT_EQ(s.durations[1]["x"].doubleValue(), 2);
}

TEST(ContractionSeries, ChartAxesFollowThePoints) {
  const Map empty = contractionChart({}, "График интервалов между схватками", true);
  EXPECT_DOUBLE_EQ(empty["yAxisMin"].doubleValue(), 0);
  EXPECT_DOUBLE_EQ(empty["yAxisMax"].doubleValue(), 1.1);
  EXPECT_DOUBLE_EQ(empty["xAxisMax"].doubleValue(), 1);

  const auto one = buildSeries(withPauses(kFirst, {}, 52));
  EXPECT_TRUE(one.intervals.empty());
  const Map single = contractionChart(one.durations, "График продолжительности схваток", true);
  EXPECT_DOUBLE_EQ(single["yAxisMin"].doubleValue(), 51);
  EXPECT_DOUBLE_EQ(single["yAxisMax"].doubleValue(), 53);
  EXPECT_DOUBLE_EQ(single["xAxisMax"].doubleValue(), 2);

  const Map spread =
      contractionChart(buildSeries(withPauses(kFirst, {200, 300, 400})).intervals, "", true);
  EXPECT_DOUBLE_EQ(spread["yAxisMin"].doubleValue(), 180);
  EXPECT_DOUBLE_EQ(spread["yAxisMax"].doubleValue(), 422);
  // A minimum that a tenth below would take under 0 stays.
  const Map low = contractionChart(buildSeries(withPauses(kFirst, {10, 400})).intervals, "", true);
  EXPECT_DOUBLE_EQ(low["yAxisMin"].doubleValue(), 10);
  EXPECT_DOUBLE_EQ(low["yAxisMax"].doubleValue(), 439);
}

}  // namespace
}  // namespace lad::health
