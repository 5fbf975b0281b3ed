#include "health/development_chart.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "charts/plot_scale.h"
#include "drawing/recording_canvas.h"
#include "tests/health/health_fixture.h"

namespace lad::health {
namespace {

using Kind = drawing::Command::Kind;

class DevelopmentChartTest : public testing::HealthTest {
 protected:
  // The pictures drawn, by file name, and the texts, for a pregnancy on its given day.
  drawing::RecordingCanvas paint(int day, std::optional<int> birthDay = std::nullopt) {
    input = {day, birthDay, 2, true};
    drawing::RecordingCanvas c;
    drawDevelopment(c, kFrame, context, input, LADANEYA_IMAGES_DIR);
    return c;
  }
  static std::vector<std::string> pictures(const drawing::RecordingCanvas& c) {
    std::vector<std::string> names;
    for (const auto& image : c.ofKind(Kind::Image))
      names.push_back(std::filesystem::path(image.text).filename().string());
    return names;
  }
  static long count(const drawing::RecordingCanvas& c, const std::string& picture) {
    return std::ranges::count(pictures(c), picture);
  }
  double xOfDay(int day) const {
    return charts::getPoint(developmentChart(context, input), kFrame, 2, day, 0).x;
  }

  static constexpr drawing::Rect kFrame{0, 0, 600, 300};
  DevelopmentInput input{};
};

TEST_F(DevelopmentChartTest, FlamesOpenTheTrimestersAndTodaysMarkerCarriesTheSizeFromWeek8) {
  const auto early = paint(30);  // week 4: no size yet
  EXPECT_EQ(count(early, "b-fire.png"), 3);
  EXPECT_EQ(count(early, "b-baloon.png"), 0);
  const auto flames = early.ofKind(Kind::Image);
  const auto flameAt = [&](int day) {
    return std::ranges::any_of(flames, [&](const drawing::Command& c) {
      return c.text.ends_with("b-fire.png") && c.rect.x == xOfDay(day);
    });
  };
  EXPECT_TRUE(flameAt(0) && flameAt(91) && flameAt(182)) << "weeks 1, 14 and 27 begin there";

  const auto week8 = paint(60);
  ASSERT_EQ(count(week8, "b-baloon.png"), 1);
  const auto images = week8.ofKind(Kind::Image);
  const auto marker =
      std::ranges::find_if(images, [](const auto& c) { return c.text.ends_with("b-child-c.png"); });
  EXPECT_DOUBLE_EQ(marker->rect.centre().x, xOfDay(59)) << "day 60 is 59 days from the first";
  const auto texts = week8.ofKind(Kind::Text);
  EXPECT_TRUE(std::ranges::any_of(texts, [](const auto& t) {
    return t.text == "1.0 гр.\n14.0 мм.";
  })) << "the early length stands in for the curve's";

  EXPECT_EQ(count(paint(288), "b-baloon.png"), 0) << "week 41 is past the balloon's weeks";
}

TEST_F(DevelopmentChartTest, AnEarlyBirthEndsThePicture) {
  const auto born = paint(200, 150);
  EXPECT_EQ(count(born, "b-fire.png"), 2) << "no third trimester";
  EXPECT_EQ(count(born, "b-child-c.png"), 0) << "today is past it";
  EXPECT_EQ(developmentChart(context, input)["xAxisMax"].intValue(), 150);
  EXPECT_EQ(pictures(paint(0)).size(), pictures(paint(30)).size() - 1)
      << "before the first day there is no marker";
}

}  // namespace
}  // namespace lad::health
