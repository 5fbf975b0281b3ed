#include "health/contraction_trend.h"

#include <cmath>

#include "health/contraction_series.h"

namespace lad::health {

namespace {

struct TrendCounts {
  int c8 = 0, c20 = 0;
  bool trend = false;
};

// Walks the intervals from the last to the first. A pair counts when the later interval is no
// more than a minute longer than the earlier one, or shorter than it; a trend is 71 % or more
// of the pairs counting (the count starts at 1).
TrendCounts countTrend(const List& intervals) {
  TrendCounts t;
  int m = 1;
  std::int64_t p = 0;
  for (auto it = intervals.rbegin(); it != intervals.rend(); ++it) {
    const double y = (*it)["y"].doubleValue();
    if (y < 480)
      ++t.c8;
    else if (y < 1200)
      ++t.c20;
    if (p >= 1 && (std::abs(static_cast<double>(p) - y) < 60 || static_cast<double>(p) < y)) ++m;
    p = static_cast<std::int64_t>(y);
  }
  t.trend = 100 * m / static_cast<int>(intervals.size()) >= 71;
  return t;
}

}  // namespace

TrendMessage testTrend(const std::vector<Contraction>& contractions) {
  if (contractions.empty())
    return {"Пока нет данных для отображения графиков. Нажмите на кнопку СТАРТ при начале схватки.",
            2};
  const List intervals = buildSeries(contractions).intervals;
  if (intervals.size() < 3)
    return {
        "Данных мало. Нужно минимум 4 схватки (3 интервала между ними), чтобы начать "
        "определение тенденции.",
        2};
  const TrendCounts t = countTrend(intervals);
  if (!t.trend) {
    if (t.c8 >= 3)
      return {
          "Тенденция пока не наблюдается, но как минимум 3 схватки произошли с интервалом "
          "меньше 8 минут. Стоит позвонить врачу и проконсультироваться",
          3};
    if (t.c20 >= 3)
      return {
          "Тенденция пока не наблюдается, но как минимум 3 схватки произошли с интервалом "
          "меньше 20 минут. Если у вас это не первые роды стоит позвонить врачу и "
          "проконсультироваться",
          1};
    return {
        "Тенденция пока не наблюдается, возможно у Вас ложные схватки (схватки Брекстона "
        "Хикса).",
        1};
  }
  if (t.c8 >= 3)
    return {
        "Внимание! Частота схваток увеличивается. И как минимум 3 из них произошли с "
        "интервалом меньше 8 минут. Скорее всего началась активная фаза. Если Вы еще не в "
        "роддоме - поторопитесь!",
        3};
  if (t.c20 >= 3)
    return {
        "Внимание! Частота схваток увеличивается. И как минимум 3 из произошли с интервалом "
        "меньше 20 минут. Если у Вас это не первые роды, следует собираться в роддом!",
        1};
  return {
      "Частота схваток увеличивается, но интервал между ними пока достаточно большой. "
      "Продолжайте измерения.",
      1};
}

}  // namespace lad::health
