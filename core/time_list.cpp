#include "core/time_list.h"

#include <unicode/utf8.h>

#include <vector>

#include "core/text_parts.h"
#include "core/value.h"

namespace lad {

namespace {

constexpr std::string_view kItemEnd = "<end>";
constexpr std::string_view kFieldEnd = "<td>";

// Minutes of a time key; the hours are its first three characters, not bytes.
std::int64_t minutesOf(std::string_view time) {
  int32_t split = 0;
  U8_FWD_N(time.data(), split, static_cast<int32_t>(time.size()), 3);
  const auto hours = time.substr(0, static_cast<std::size_t>(split));
  return leadingInteger(hours) * 60 + leadingInteger(time.substr(hours.size()));
}

std::string_view timeOf(std::string_view item) {
  return item.substr(0, item.find(kFieldEnd));
}

}  // namespace

std::int64_t timeCompare(std::string_view time1, std::string_view time2) {
  return minutesOf(time1) - minutesOf(time2);
}

std::string sortValueByTime(int /*type*/, std::string_view source) {
  const std::vector<std::string_view> items = splitOn(source, kItemEnd);
  if (items.size() < 2) return std::string(source);
  std::vector<std::string_view> sorted;
  for (std::string_view item : items) {
    auto place = sorted.begin();
    while (place != sorted.end() && timeCompare(timeOf(*place), timeOf(item)) <= 0) ++place;
    sorted.insert(place, item);
  }
  std::string out(sorted.front());
  for (std::size_t i = 1; i < sorted.size(); ++i) {
    out += kItemEnd;
    out += sorted[i];
  }
  return out;
}

std::optional<int> clockMinutes(std::string_view text) {
  const auto digit = [&](std::size_t i) { return text[i] >= '0' && text[i] <= '9'; };
  if (text.size() != 5 || text[2] != ':' || !digit(0) || !digit(1) || !digit(3) || !digit(4))
    return std::nullopt;
  const int h = (text[0] - '0') * 10 + text[1] - '0', m = (text[3] - '0') * 10 + text[4] - '0';
  if (h > 23 || m > 59) return std::nullopt;
  return h * 60 + m;
}

}  // namespace lad
