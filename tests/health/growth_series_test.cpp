#include "health/growth_series.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "drawing/image_size.h"
#include "health/growth_charts.h"
#include "health/weight_chart.h"
#include "tests/store/day_fixture.h"

namespace lad::health {
namespace {

// A pregnancy begun on 2026-02-01.
class GrowthSeriesTest : public testing::DayTest {
 protected:
  void SetUp() override { openEdition(1); }

  Map setup(const std::string& ves) {
    Map m;
    m.set("dat1", day(1, 2));
    m.set("ves", ves);
    return m;
  }
};

TEST(GrowthCurves, AWeeksSizeComesFromItsOwnPointOfEachCurve) {
  const std::pair<int, std::pair<double, double>> weeks[] = {
      {8, {1.0, 16}}, {7, {0, 0}}, {20, {300, 256}}, {43, {0, 0}}, {3, {0, 0}}, {42, {3630, 521}}};
  for (const auto& [week, size] : weeks) {
    const WeekSize s = getVesRost(week, 2);
    EXPECT_EQ(s.ves, size.first) << week;
    EXPECT_EQ(s.rost, size.second) << week;
  }
  EXPECT_EQ(getVesRost(5, 2).vespx, 30) << "a week off the curve leaves the marker at the corner";

  std::vector<std::string> labels;
  for (const WeekPoint& p : fillVes())
    if (!p.label.empty()) labels.push_back(std::to_string(p.week) + "=" + p.label);
  EXPECT_EQ(labels.back(), "40=3462.0") << "the last label stands at week 40";

  EXPECT_EQ(shownLength(29, 0), 2);
  EXPECT_EQ(shownLength(56, 0), 5);
  EXPECT_EQ(shownLength(63, 23), 14);
  EXPECT_EQ(shownLength(64, 23), 23);
}

TEST(GrowthCharts, TheAxesFollowTheWeeksTheBirthAndTheLargestMeasurement) {
  const std::vector<UltrasoundPoint> uzi{{70, "0.0", "30.0"}, {200, "610.5", "4200.0"}};
  const Map length = growthChart({GrowthMeasure::Length, "Рост (миллиметры)", uzi, 273});
  EXPECT_EQ(length["xAxisMax"].intValue(), 273) << "the graph ends at the birth";
  EXPECT_EQ(length["yAxisMax"].doubleValue(), 610.5);
  ASSERT_EQ(length["Points"].asList()->size(), 1u) << "a length of 0 is no mark";
  EXPECT_EQ((*length["Graph1"].asList())[1]["x"].doubleValue(), 56) << "weeks drawn in days";

  const Map weight = growthChart({GrowthMeasure::Weight, "Вес (граммы)", {}, std::nullopt});
  EXPECT_EQ(weight["xAxisMax"].intValue(), 294);
  EXPECT_EQ(weight["yAxisMax"].doubleValue(), 3900);
}

TEST_F(GrowthSeriesTest, TheOwnGainStartsAtTheBaseOrTheFirstRecordAndSkipsWhatDoesNotRead) {
  put("ves", "59.000", day(20, 1));  // before the pregnancy: not in it
  put("ves", "шестьдесят", day(5, 2));
  put("ves", "60.500", day(10, 2));
  put("ves", "63.500", day(1, 5));
  put("ves", "61.000", day(1, 6));

  OwnGain noBase = initWomanData(*store, kGid, setup("0"));
  ASSERT_EQ(noBase.points.size(), 3u);
  EXPECT_EQ(noBase.points[0].value, 0) << "without a weight before, the first record is the base";
  EXPECT_DOUBLE_EQ(noBase.largest, 3.0);

  OwnGain withBase = initWomanData(*store, kGid, setup("62"));
  EXPECT_DOUBLE_EQ(withBase.points[0].value, -1.5) << "a gain may be negative";
  EXPECT_DOUBLE_EQ(withBase.largest, 1.5);

  deleteVes(withBase.points, day(1, 5), context->dates());
  ASSERT_EQ(withBase.points.size(), 2u);
  EXPECT_DOUBLE_EQ(withBase.points[1].value, -1.0);

  put("uzi", R"({"rost":"4.5","ves":"0.012"})", day(1, 3));
  put("uzi", "not json", day(1, 4));
  put("uzi", R"({"rost":"0","ves":"0.3"})", day(1, 5));
  const auto uzi = getUzi(*store, kGid, day(1, 2));
  ASSERT_EQ(uzi.size(), 2u);
  EXPECT_EQ(uzi[0].day, 28) << "in days from the first day";
  EXPECT_EQ(uzi[0].rost, "45.0");
  EXPECT_EQ(uzi[0].ves, "12.0");
  EXPECT_EQ(uzi[1].rost, "0.0");
}

TEST_F(GrowthSeriesTest, TheWeightChartDrawsTheNormAndTheGainUpToDay294) {
  put("ves", "61.000", day(11, 2));   // day 10, below the weight before
  put("ves", "70.000", day(22, 11));  // day 294
  put("ves", "90.000", day(23, 11));  // day 295: not drawn, yet it raises the axis
  Map average = setup("62");
  average.set("bodytype", 2);
  const Map chart = weightChart(*store, kGid, average, 2);
  const List& norm = *chart["Graph1"].asList();
  ASSERT_EQ(norm.size(), 22u);
  EXPECT_EQ(norm[21]["x"].doubleValue(), 294) << "week 42 in days";
  const List& own = *chart["Graph2"].asList();
  ASSERT_EQ(own.size(), 2u);
  EXPECT_EQ(own[0]["x"].doubleValue(), 10);
  EXPECT_EQ(own[1]["x"].doubleValue(), 294);
  EXPECT_DOUBLE_EQ(chart["yAxisMin"].doubleValue(), -1) << "a loss lowers the axis";
  EXPECT_DOUBLE_EQ(chart["yAxisMax"].doubleValue(), 14.2) << "the norm's top is above her gain";

  Map unknownBuild = setup("0");
  const Map onlyOwn = weightChart(*store, kGid, unknownBuild, 2);
  EXPECT_TRUE(onlyOwn["Graph1"].asList()->empty()) << "no norm without a build";
  EXPECT_DOUBLE_EQ(onlyOwn["yAxisMax"].doubleValue(), 9);
}

TEST_F(GrowthSeriesTest, TheBooksWeightPageIsAPictureOfTheAskedSize) {
  for (const auto& [month, ves] :
       {std::pair{3, "60.000"}, {5, "62.500"}, {7, "66.000"}, {9, "70.500"}})
    put("ves", ves, day(1, month));
  // A page of the book at 300 dots an inch is thousands of units wide: the chart's zoom is 5.
  const auto png = bookPageGraph(*store, kGid, {2400, 1600}, 0.5, LADANEYA_IMAGES_DIR);
  ASSERT_TRUE(png);
  const auto dir = std::filesystem::path(LADANEYA_TEST_OUTPUT_DIR);
  std::filesystem::create_directories(dir);
  std::ofstream(dir / "weight_chart.png", std::ios::binary) << *png;
  const auto size = drawing::pngSize((dir / "weight_chart.png").string());
  ASSERT_TRUE(size);
  EXPECT_EQ(size->w, 1200);
  EXPECT_EQ(size->h, 800);
}

}  // namespace
}  // namespace lad::health
