// The node of the day schedule: the day with the buttons to the days on either side, the button
// of the meal times, and the rows of the day.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/value.h"
#include "shell/views/pages.h"

namespace lad::shell {

// One text of a row: what it is (0 a notice, 1 a doctor's item, 5 a reminder, 23 a medicine,
// 25 a diet's menu) and the text.
struct ScheduleEntryView {
  int kind = 0;
  std::string text;

  Value toValue() const;
};

// How a row is painted: "meal" (a meal with its word at the right), "relation" (an intake
// before or after a meal), "heading" (the caption of a block), "blank" (a gap), "plain".
struct ScheduleRowView {
  std::string style;
  std::string right;
  std::vector<ScheduleEntryView> entries;

  Value toValue() const;
};

struct ScheduleView {
  static constexpr std::string_view kKind = "schedule";
  YearView day;  // the day's caption between the buttons to the day before and after
  ButtonView meals;
  std::vector<ScheduleRowView> rows;

  Value toValue() const;
};

}  // namespace lad::shell
