// The pickers over the screen, by wheel set: 1 a date, 2 a time, 3 a count-down length, and
// for the other sets the wheels of listFor (set 9: the captions of the rows given). The old
// value and the answer are in the forms the field editor keeps: "dd.MM.yyyy" for a date,
// "HH:mm" for a time or a length, the wheels' texts joined by "<td>" for the other sets.
#pragma once

#include <string>
#include <vector>

#include "core/context.h"
#include "shell/popup.h"

namespace lad::shell {

inline constexpr int kDatePicker = 1;
inline constexpr int kTimePicker = 2;
inline constexpr int kCountDownPicker = 3;
inline constexpr int kRowListPicker = 9;

class WheelPicker : public Popup {
 public:
  // rowCaptions feeds set 9 only. An empty or unreadable old value starts at now (date and
  // time), at "00:00" (count-down) or at the first rows (wheels).
  WheelPicker(const Context& context, int set, std::string_view caption, std::string_view old,
              std::vector<std::string> rowCaptions = {});

  // The wheels' rows; empty for the date and time sets.
  const std::vector<std::vector<std::string>>& wheels() const { return wheels_; }

  // The node carries "mode" ("date", "time", "countdown" or "wheels") and the old value: for
  // a date as "yyyy-MM-dd", for a time as "HH:mm", for wheels as the rows' positions. The
  // browser sends the same forms back with the tap on "popup:1" ("popup:0" closes).
  Value view() const override;
  std::optional<PopupAnswer> answer(std::string_view target, const Value& input) const override;

 private:
  std::optional<std::string> readInput(const Value& input) const;
  std::optional<std::string> readWheels(const Value& input) const;

  const Context& context_;
  int set_;
  std::string caption_;
  std::string value_;  // "yyyy-MM-dd" or "HH:mm"
  std::vector<std::vector<std::string>> wheels_;
  std::vector<int> positions_;
};

}  // namespace lad::shell
