#include "resources/tools/translation_source.h"

#include <unordered_map>

namespace lad::resgen {

namespace {

constexpr std::string_view kHeader = "rus\tger\tfra";

std::vector<std::string_view> splitTabs(std::string_view line) {
  std::vector<std::string_view> fields;
  for (std::size_t tab; (tab = line.find('\t')) != std::string_view::npos;) {
    fields.push_back(line.substr(0, tab));
    line.remove_prefix(tab + 1);
  }
  fields.push_back(line);
  return fields;
}

// The next line of the text without its end, which may be "\r\n".
std::string_view takeLine(std::string_view& text) {
  const std::size_t end = text.find('\n');
  std::string_view line = text.substr(0, end);
  text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

// Checks one line and, when it is good, notes its Russian text against later repeats.
std::optional<SourceError> lineFault(const std::vector<std::string_view>& fields, int number,
                                     std::unordered_map<std::string, int>& lineOfText) {
  if (fields.size() != 3)
    return SourceError{number, std::to_string(fields.size()) + " fields, 3 expected"};
  if (fields[0].empty()) return SourceError{number, "empty Russian text"};
  auto [first, added] = lineOfText.emplace(std::string(fields[0]), number);
  if (!added)
    return SourceError{number, "the Russian text \"" + first->first + "\" is already on line " +
                                   std::to_string(first->second)};
  return std::nullopt;
}

}  // namespace

TranslationSource parseTranslationSource(std::string_view text) {
  TranslationSource source;
  if (takeLine(text) != kHeader) {
    source.error = SourceError{1, "the header must read rus, ger, fra separated by tabs"};
    return source;
  }
  std::unordered_map<std::string, int> lineOfText;
  for (int number = 2; !text.empty(); ++number) {
    const std::string_view line = takeLine(text);
    if (line.empty() || line.starts_with('#')) continue;
    const auto fields = splitTabs(line);
    source.error = lineFault(fields, number, lineOfText);
    if (source.error) return source;
    source.rows.push_back({std::string(fields[0]), std::string(fields[1]), std::string(fields[2])});
  }
  return source;
}

}  // namespace lad::resgen
