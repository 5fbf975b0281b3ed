#include "resources/tools/warning_file.h"

#include <algorithm>
#include <string>

#include "content/resource.h"
#include "core/text_parts.h"

namespace lad::resgen {

namespace {

// Digits only, once the white space around them (the line breaks between rows) is trimmed.
bool wholeNumber(std::string_view field) {
  const std::string_view digits = content::trimText(field);
  return !digits.empty() &&
         std::all_of(digits.begin(), digits.end(), [](char c) { return c >= '0' && c <= '9'; });
}

// A row starts on the line of its first visible character, after the breaks between rows.
int leadingBreaks(std::string_view row) {
  const std::size_t first = std::min(row.find_first_not_of(" \t\r\n"), row.size());
  return static_cast<int>(std::count(row.begin(), row.begin() + first, '\n'));
}

std::optional<std::string> rowFault(std::string_view row) {
  const auto fields = splitOn(row, "<td>");
  if (fields.size() < 3) return "a notice needs three fields: event id, week, text";
  if (!wholeNumber(fields[0]))
    return "event id is not a whole number: \"" + std::string(content::trimText(fields[0])) + '"';
  if (!wholeNumber(fields[1]))
    return "week is not a whole number: \"" + std::string(content::trimText(fields[1])) + '"';
  return std::nullopt;
}

}  // namespace

std::optional<SourceError> checkWarnings(std::string_view text) {
  int line = 1;
  for (const std::string_view row : splitOn(text, "<tr>")) {
    if (auto fault = rowFault(row)) return SourceError{line + leadingBreaks(row), *fault};
    line += static_cast<int>(std::count(row.begin(), row.end(), '\n'));
  }
  return std::nullopt;
}

}  // namespace lad::resgen
