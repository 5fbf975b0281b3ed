// Display templates and tick identifiers.
#include "content/display.h"

#include <algorithm>

#include "content/record.h"
#include "core/ids.h"
#include "core/text_parts.h"
#include "core/value.h"

namespace lad::content {

namespace {

// Beyond this many weeks from the start a date means nothing; it also keeps the day count in range.
constexpr int kWeekLimit = 100000;

void replaceAll(std::string& s, std::string_view from, std::string_view to) {
  for (auto at = s.find(from); at != std::string::npos; at = s.find(from, at + to.size()))
    s.replace(at, from.size(), to);
}

std::vector<std::string_view> tokens(std::string_view format) {
  std::vector<std::string_view> out;
  std::size_t start = 0;
  for (std::size_t i = 0; i <= format.size(); ++i) {
    if (i < format.size() && std::string_view(" -()").find(format[i]) == std::string_view::npos)
      continue;
    if (i > start) out.push_back(format.substr(start, i - start));
    start = i + 1;
  }
  return out;
}

std::string weekDay(std::string_view token, int dayOfWeek, Date start, const DateCodec& dates) {
  const int week = std::clamp(cutToInt(leadingDouble(token.substr(2))), -kWeekLimit, kWeekLimit);
  return dates.dateToString(dates.addDays(start, week * 7 - 7 + dayOfWeek), "dd.MM");
}

std::size_t characters(std::string_view s) {
  return static_cast<std::size_t>(
      std::count_if(s.begin(), s.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

}  // namespace

std::string fillTemplate(std::string_view format, std::string_view text, Date start,
                         const DateCodec& dates) {
  std::string out(format);
  for (std::string_view token : tokens(format)) {
    if (token == "CAP")
      replaceAll(out, token, text);
    else if (token.size() >= 3 && token.starts_with("WS"))
      replaceAll(out, token, weekDay(token, 0, start, dates));
    else if (token.size() >= 3 && token.starts_with("WE"))
      replaceAll(out, token, weekDay(token, 6, start, dates));
  }
  return out;
}

std::string shownText(std::string_view format, std::string_view text, Date start,
                      const DateCodec& dates) {
  return format.empty() ? std::string(text) : fillTemplate(format, text, start, dates);
}

std::string tickGuid(std::string_view checkid, std::size_t longestNumber) {
  if (characters(checkid) > longestNumber) return std::string(checkid);
  return newID2(2, leadingInteger(checkid));
}

}  // namespace lad::content
