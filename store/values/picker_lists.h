// The rows of the two-wheel pickers of a medicine course: its length, dose and frequency. The
// old stored forms of these fields hold the row numbers, the current ones the row texts.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lad {

// The wheel sets, by the numbers that the field editors pass.
inline constexpr int kLengthPicker = 4;
inline constexpr int kDosePicker = 5;
inline constexpr int kFrequencyPicker = 6;

// The rows of one wheel (0 or 1) of a set; empty for a set or wheel that does not exist.
const std::vector<std::string>& listFor(int set, int wheel);

// The text of one row; "" for a row outside the wheel.
std::string valueFromList(int set, int wheel, std::int64_t row);

// The row that shows the text; 0, the wheel's first row, for a text the wheel lacks.
int posFromList(int set, int wheel, std::string_view value);

}  // namespace lad
