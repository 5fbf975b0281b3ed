// The pickers over the screen, by wheel set: 1 a date, 2 a time, 3 a count-down length, and
// for the other sets the wheels of listFor (set 9: the captions of the rows given). Every set
// turns wheels the server fills, so a date or a time reads the same whatever the browser's
// language. The old value and the answer are in the forms the field editor keeps:
// "dd.MM.yyyy" for a date, "HH:mm" for a time or a length, the wheels' texts joined by "<td>"
// for the other sets.
#pragma once

#include <string>
#include <string_view>
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

  // The wheels' rows as stored; a date's are day, month and year, a time's hours and minutes.
  const std::vector<std::vector<std::string>>& wheels() const { return wheels_; }

  // The node carries the wheels, each with its rows (words in the user's language) and the
  // position of the old value. The browser sends the positions back with the tap on
  // "popup:1" ("popup:0" closes).
  Value view() const override;
  std::optional<PopupAnswer> answer(std::string_view target, const Value& input) const override;

 private:
  void dateWheels(std::string_view old);
  void timeWheels(std::string_view old);
  void positionAt(const std::vector<std::string_view>& olds);
  std::optional<std::vector<int>> readPositions(const Value& input) const;
  std::string compose(const std::vector<int>& positions) const;

  const Context& context_;
  int set_;
  std::string caption_;
  std::vector<std::vector<std::string>> wheels_;
  std::vector<int> positions_;
};

}  // namespace lad::shell
