// The wheels a field editor's row is picked on: a date, a dose, a count of intakes, a course's
// length, or one of a course's intake times. The answer comes in the form the row keeps.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "core/context.h"
#include "shell/wheel_picker.h"

namespace lad::shell {

// The picker of a row, captioned with its description (or caption); nullptr for a row of a
// kind that is not picked on wheels.
std::unique_ptr<WheelPicker> rowPicker(const Context& context, const Map& row);

// One of the times of a row of intake times, read from its target ("field:pilltime:1").
struct IntakeTime {
  std::string field;
  std::size_t n;
};
std::optional<IntakeTime> intakeTimeOf(std::string_view target);

// The time picker of the nth intake time of the row; nullptr for a time the row lacks.
std::unique_ptr<WheelPicker> intakeTimePicker(const Context& context, const Map& row,
                                              std::size_t n);
// The row's times with the nth replaced; nullopt when the row lacks it or time is not "HH:mm".
std::optional<std::string> withIntakeTime(const Context& context, const Map& row, std::size_t n,
                                          std::string_view time);

}  // namespace lad::shell
