// The rows of the day schedule that stand a few minutes after one of the five meals.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "health/day_schedule.h"

namespace lad::health {

// The minutes after a meal at which its rows stand.
enum MealMinute { kBlankBefore = 1, kBefore = 2, kMealMinute = 3, kAfter = 4, kBlankAfter = 5 };

// The meal's words in the schedule, by meal (0 breakfast to 4 dinner).
inline constexpr const char* kMealWords[] = {"завтрак", "2ой завтрак", "обед", "полдник", "ужин"};

class MealRows {
 public:
  // Rows of meal `meal` (0 breakfast to 4 dinner) of the "<table>"-joined meal times.
  MealRows(Schedule& rows, std::string_view meals, int meal)
      : rows_(rows), meals_(meals), meal_(meal) {}

  // Merges a row in at the meal's minute; nothing when the meal's time is not "HH:mm".
  void add(int minute, int tp, const std::string& right, const std::string& value) const {
    if (auto pos = gt(meals_, meal_ + 1, minute)) insInData(rows_, tp, right, value, *pos);
  }

 private:
  Schedule& rows_;
  std::string_view meals_;
  int meal_;
};

}  // namespace lad::health
