// Clock texts of the child's diary: a sleep or a walk as its start, end and length, each
// "HH:mm", kept in step while one of them is typed, and minutes written as a clock and back.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/value.h"

namespace lad::health {

// The text padded on the left with the mask and cut to the mask's length from the right:
// inMask("5", "00") is "05".
std::string inMask(std::string_view text, std::string_view mask);

// Minutes as "HH:mm", both parts with two places; no value (an empty text) is "00:00".
std::string mtt(std::string_view minutes);
// "HH:mm" as minutes; a text without ":" is its number.
std::int64_t ttm(std::string_view clock);

// The missing one of a period's three clock texts. Without the interval: end less start, a
// negative hour count taking 24, so a span over midnight is right. Without the end: start plus
// interval, where minutes carry only above 60 (01:30 plus 00:30 stays "01:60") and 24 hours
// wrap to 0. With all three or with the start missing: nothing.
std::optional<std::string> countInterval(const std::optional<std::string>& start,
                                         const std::optional<std::string>& end,
                                         const std::optional<std::string>& interval);

// The form's rows marked "autocalc" with "start", "end" and "length" kept in step after the
// row of that mark changed: a new start or end recounts the length, a new length the end.
// Nothing happens while any of the three is missing.
void autocalc(List& rows, std::string_view changedMark);

}  // namespace lad::health
