#include "health/growth_series.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "core/ids.h"
#include "drawing/image_size.h"
#include "health/growth_charts.h"
#include "health/weight_chart.h"
#include "store/records.h"
#include "store/store.h"
#include "tests/store/day_fixture.h"

namespace lad::health {
namespace {

// The first pregnancy of the edition's real template, begun on 2026-02-01.
class GrowthSeriesTest : public testing::DayTest {
 protected:
  void SetUp() override { openEdition(1); }

  Date day(const std::string& text) { return context->dates().dateFromString(text).value(); }
  void record(const std::string& text, const std::string& type, const std::string& value) {
    StoreBracket bracket = store->connectToBase();
    insertValue(*store, bracket, type, value, day(text), kPregnancy, true, false);
  }
  Map setup(const std::string& ves) {
    Map m;
    m.set("dat1", day("2026-02-01"));
    m.set("ves", ves);
    return m;
  }
  const std::string kPregnancy = newID2(1, 1);
};

TEST(GrowthCurves, AWeeksSizeComesFromItsOwnPointOfEachCurve) {
  const std::pair<int, std::pair<double, double>> weeks[] = {
      {8, {1.0, 16}}, {7, {0, 0}}, {20, {300, 256}}, {43, {0, 0}}, {3, {0, 0}}, {42, {3630, 521}}};
  for (const auto& [week, size] : weeks) {
    const WeekSize s = getVesRost(week, 2);
    EXPECT_EQ(s.ves, size.first) << week;
    EXPECT_EQ(s.rost, size.second) << week;
  }
  EXPECT_DOUBLE_EQ(getVesRost(20, 2).vespx, 30 + 580.0 / 40 * 20);
  EXPECT_EQ(getVesRost(5, 2).vespx, 30) << "a week off the curve leaves the marker at the corner";

  std::vector<std::string> labels;
  for (const WeekPoint& p : fillVes())
    if (!p.label.empty()) labels.push_back(std::to_string(p.week) + "=" + p.label);
  EXPECT_EQ(labels.front(), "3=0.0");
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
  EXPECT_EQ((*length["Points"].asList())[0]["x"].intValue(), 200);
  std::string labels;
  for (const Value& tick : *length["xAxisValue"].asList())
    if (!tick["label"].text().empty()) labels += tick["label"].text() + " ";
  EXPECT_EQ(labels, "4 7 10 13 16 19 22 25 28 31 34 37 40 ");
  EXPECT_EQ((*length["Graph1"].asList())[1]["x"].doubleValue(), 56) << "weeks drawn in days";

  const Map weight = growthChart({GrowthMeasure::Weight, "Вес (граммы)", {}, std::nullopt});
  EXPECT_EQ(weight["xAxisMax"].intValue(), 294);
  EXPECT_EQ(weight["yAxisMax"].doubleValue(), 3900);
}

TEST_F(GrowthSeriesTest, TheOwnGainStartsAtTheBaseOrTheFirstRecordAndSkipsWhatDoesNotRead) {
  record("2026-01-20", "ves", "59.000");  // before the pregnancy: not in it
  record("2026-02-05", "ves", "шестьдесят");
  record("2026-02-10", "ves", "60.500");
  record("2026-05-01", "ves", "63.500");
  record("2026-06-01", "ves", "61.000");

  OwnGain noBase = initWomanData(*store, kPregnancy, setup("0"));
  ASSERT_EQ(noBase.points.size(), 3u);
  EXPECT_EQ(noBase.points[0].value, 0) << "without a weight before, the first record is the base";
  EXPECT_DOUBLE_EQ(noBase.largest, 3.0);

  OwnGain withBase = initWomanData(*store, kPregnancy, setup("62"));
  EXPECT_DOUBLE_EQ(withBase.points[0].value, -1.5) << "a gain may be negative";
  EXPECT_DOUBLE_EQ(withBase.largest, 1.5);

  deleteVes(withBase.points, day("2026-05-01"), context->dates());
  ASSERT_EQ(withBase.points.size(), 2u);
  EXPECT_DOUBLE_EQ(withBase.points[1].value, -1.0);

  record("2026-03-01", "uzi", R"({"rost":"4.5","ves":"0.012"})");
  record("2026-04-01", "uzi", "not json");
  record("2026-05-01", "uzi", R"({"rost":"0","ves":"0.3"})");
  const auto uzi = getUzi(*store, kPregnancy, day("2026-02-01"));
  ASSERT_EQ(uzi.size(), 2u);
  EXPECT_EQ(uzi[0].day, 28) << "in days from the first day";
  EXPECT_EQ(uzi[0].rost, "45.0");
  EXPECT_EQ(uzi[0].ves, "12.0");
  EXPECT_EQ(uzi[1].rost, "0.0");
}

TEST_F(GrowthSeriesTest, TheWeightChartDrawsTheNormAndTheGainUpToDay294) {
  record("2026-02-11", "ves", "61.000");  // day 10, below the weight before
  record("2026-11-22", "ves", "70.000");  // day 294
  record("2026-11-23", "ves", "90.000");  // day 295: not drawn, yet it raises the axis
  Map average = setup("62");
  average.set("bodytype", 2);
  const Map chart = weightChart(*store, kPregnancy, average, 2);
  const List& norm = *chart["Graph1"].asList();
  ASSERT_EQ(norm.size(), 22u);
  EXPECT_EQ(norm[21]["x"].doubleValue(), 294) << "week 42 in days";
  const List& own = *chart["Graph2"].asList();
  ASSERT_EQ(own.size(), 2u);
  EXPECT_EQ(own[0]["x"].doubleValue(), 10);
  EXPECT_EQ(own[1]["x"].doubleValue(), 294);
  EXPECT_DOUBLE_EQ(chart["yAxisMin"].doubleValue(), -1) << "a loss lowers the axis";
  EXPECT_DOUBLE_EQ(chart["yAxisMax"].doubleValue(), 14.2) << "the norm's top is above her gain";
  std::string labels;
  for (const Value& tick : *chart["xAxisValue"].asList()) labels += tick["label"].text() + ",";
  EXPECT_EQ(labels.substr(0, 12), "0,,2,,4,,6,,") << "the even weeks are labelled";

  Map unknownBuild = setup("0");
  const Map onlyOwn = weightChart(*store, kPregnancy, unknownBuild, 2);
  EXPECT_TRUE(onlyOwn["Graph1"].asList()->empty()) << "no norm without a build";
  EXPECT_DOUBLE_EQ(onlyOwn["yAxisMax"].doubleValue(), 9);
}

TEST_F(GrowthSeriesTest, TheBooksWeightPageIsAPictureOfTheAskedSize) {
  for (const auto& [day, ves] : {std::pair{"2026-03-01", "60.000"},
                                 {"2026-05-01", "62.500"},
                                 {"2026-07-01", "66.000"},
                                 {"2026-09-01", "70.500"}})
    record(day, "ves", ves);
  // A page of the book at 300 dots an inch is thousands of units wide: the chart's zoom is 5.
  const auto png = bookPageGraph(*store, kPregnancy, {2400, 1600}, 0.5, LADANEYA_IMAGES_DIR);
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
