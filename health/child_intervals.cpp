#include "health/child_intervals.h"

namespace lad::health {

namespace {

constexpr std::string_view kTwoPlaces = "00";

struct Clock {
  std::int64_t hours = 0;
  std::int64_t minutes = 0;
};

Clock clockOf(std::string_view text) {
  const auto colon = text.find(':');
  if (colon == std::string_view::npos) return {leadingInteger(text), 0};
  return {leadingInteger(text.substr(0, colon)), leadingInteger(text.substr(colon + 1))};
}

std::string clockText(std::int64_t hours, std::int64_t minutes) {
  return inMask(std::to_string(hours), kTwoPlaces) + ":" +
         inMask(std::to_string(minutes), kTwoPlaces);
}

Map* rowMarked(List& rows, std::string_view mark) {
  for (Value& row : rows)
    if (Map* m = row.asMap(); m && (*m)["autocalc"].text() == mark) return m;
  return nullptr;
}

}  // namespace

std::string inMask(std::string_view text, std::string_view mask) {
  const std::string padded = std::string(mask) + std::string(text);
  return padded.substr(padded.size() - std::min(padded.size(), mask.size()));
}

std::string mtt(std::string_view minutes) {
  if (minutes.empty()) return clockText(0, 0);
  const std::int64_t n = leadingInteger(minutes);
  return clockText(n / 60, n % 60);
}

std::int64_t ttm(std::string_view clock) {
  if (clock.find(':') == std::string_view::npos) return leadingInteger(clock);
  const Clock c = clockOf(clock);
  return c.hours * 60 + c.minutes;
}

std::optional<std::string> countInterval(const std::optional<std::string>& start,
                                         const std::optional<std::string>& end,
                                         const std::optional<std::string>& interval) {
  if (!start || (end && interval) || (!end && !interval)) return std::nullopt;
  const Clock from = clockOf(*start);
  if (!interval) {
    const Clock to = clockOf(*end);
    std::int64_t hours = to.hours - from.hours;
    std::int64_t minutes = to.minutes - from.minutes;
    if (minutes < 0) {
      minutes += 60;
      --hours;
    }
    if (hours < 0) hours += 24;
    return clockText(hours, minutes);
  }
  const Clock length = clockOf(*interval);
  std::int64_t hours = from.hours + length.hours;
  std::int64_t minutes = from.minutes + length.minutes;
  if (minutes > 60) {
    minutes -= 60;
    ++hours;
  }
  if (hours >= 24) hours -= 24;
  return clockText(hours, minutes);
}

void autocalc(List& rows, std::string_view changedMark) {
  Map* start = rowMarked(rows, "start");
  Map* end = rowMarked(rows, "end");
  Map* length = rowMarked(rows, "length");
  if (!start || !end || !length) return;
  // A period not begun or not ended yet has nothing to count from.
  const std::string from = (*start)["source"].text();
  const std::string to = (*end)["source"].text();
  if (from.empty()) return;
  if ((changedMark == "start" || changedMark == "end") && !to.empty()) {
    if (auto span = countInterval(from, to, std::nullopt)) length->set("source", *span);
  } else if (changedMark == "length") {
    if (auto later = countInterval(from, std::nullopt, (*length)["source"].text()))
      end->set("source", *later);
  }
}

}  // namespace lad::health
