#include "health/contraction_trend.h"

#include <gtest/gtest.h>

#include "tests/health/contraction_samples.h"

namespace lad::health {
namespace {

using lad::testing::withPauses;

const Date kFirst = *dateFromIso("2026-03-30T08:00:00Z");

TrendMessage trendOf(const std::vector<int>& pauses) {
  return testTrend(withPauses(kFirst, pauses));
}

TEST(ContractionTrend, TooLittleData) {
  EXPECT_EQ(testTrend({}),
            (TrendMessage{"Пока нет данных для отображения графиков. Нажмите на кнопку СТАРТ при "
                          "начале схватки.",
                          2}));
  const TrendMessage few{
      "Данных мало. Нужно минимум 4 схватки (3 интервала между ними), чтобы "
      "начать определение тенденции.",
      2};
  EXPECT_EQ(trendOf({600, 500}), few);
  EXPECT_NE(trendOf({600, 500, 400}), few);
  // An hour's pause leaves only what follows it.
  EXPECT_EQ(trendOf({300, 300, 300, 3601, 300}), few);
  EXPECT_NE(trendOf({300, 300, 300, 3600, 300}), few);
}

TEST(ContractionTrend, TheSixMessages) {
  const struct {
    std::vector<int> pauses;
    const char* start;
    int regim;
  } cases[] = {
      {{600, 500, 400}, "Частота схваток увеличивается, но интервал между ними пока", 1},
      {{300, 301, 299}, "Внимание! Частота схваток увеличивается. И как минимум 3 из них", 3},
      {{100, 400, 700}, "Тенденция пока не наблюдается, возможно у Вас ложные схватки", 1},
      {{100, 200, 300, 400}, "Тенденция пока не наблюдается, но как минимум 3 схватки", 3},
      {{500, 700, 900, 1100}, "Тенденция пока не наблюдается, но как минимум 3 схватки", 1},
  };
  for (const auto& c : cases) {
    const TrendMessage m = trendOf(c.pauses);
    EXPECT_EQ(m.text.rfind(c.start, 0), 0u) << m.text;
    EXPECT_EQ(m.regim, c.regim) << m.text;
  }
  // Kept as it has always been shown, with the word missing after "3 из".
  EXPECT_EQ(trendOf({1000, 900, 800}),
            (TrendMessage{"Внимание! Частота схваток увеличивается. И как минимум 3 из произошли с "
                          "интервалом меньше 20 минут. Если у Вас это не первые роды, следует "
                          "собираться в роддом!",
                          1}));
}

TEST(ContractionTrend, SeventyOnePercentMakesATrend) {
  // Seven intervals, four of the six pairs counting: m = 5, q = 71.
  const auto at71 = trendOf({3000, 2000, 1000, 3000, 2000, 1000, 3000});
  EXPECT_EQ(at71.text.rfind("Частота схваток увеличивается", 0), 0u);
  // Ten intervals, six of nine pairs counting: m = 7, q = 70.
  const auto at70 = trendOf({3000, 2000, 1000, 3000, 2000, 1000, 3000, 2000, 1000, 3000});
  EXPECT_EQ(at70.text.rfind("Тенденция пока не наблюдается", 0), 0u);
}

TEST(ContractionTrend, AnIntervalUnderASecondIsNotCompared) {
  // Walked from the end: 0 leaves p = 0, so 500 is not compared with it; 500 against 1000
  // counts: m = 2 of 3, 66 %, no trend. With 400 in place of 0 every pair counts.
  EXPECT_EQ(trendOf({1000, 500, 0}).text.rfind("Тенденция", 0), 0u);
  EXPECT_EQ(trendOf({1000, 500, 400}).text.rfind("Частота", 0), 0u);
}

}  // namespace
}  // namespace lad::health
