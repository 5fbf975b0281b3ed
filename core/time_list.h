// Time keys "HH:mm" whose hours may pass 23, and the lists of items that open with one.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace lad {

// Minutes from the second time to the first: the first three characters of each read as the
// hours and the rest as the minutes, each by its leading number. A text without a two-digit
// hour gives a wrong difference, not an error.
std::int64_t timeCompare(std::string_view time1, std::string_view time2);

// Minutes since midnight of an exact clock time "HH:mm" (00:00 to 23:59); nullopt for any other
// text, "9:00" and "24:00" among them.
std::optional<int> clockMinutes(std::string_view text);

// Orders the "<end>"-separated items of a list, each opening with "HH:mm<td>", by their times;
// items of equal time keep their order. A list of fewer than two items comes back as it is.
// The type is not looked at.
std::string sortValueByTime(int type, std::string_view source);

}  // namespace lad
