#include "core/text_split.h"

namespace lad {

namespace {

constexpr std::size_t kNone = std::string_view::npos;

// Cuts the text at a blank: the line before it, the rest after it.
SplitText cutAt(std::string_view text, std::size_t blank) {
  const std::string_view rest = text.substr(blank + 1);
  return {std::string(text.substr(0, blank)),
          rest.empty() ? std::nullopt : std::optional<std::string>(rest)};
}

}  // namespace

SplitText splitString(std::string_view text, double width, double height,
                      const TextMeasurer& measurer) {
  std::size_t wordEnd = text.find(' ');
  if (wordEnd == kNone) return {std::string(text), std::nullopt};
  for (std::size_t blank = kNone;; wordEnd = text.find(' ', wordEnd + 1)) {
    // A first word higher than the room by itself stays in the line, so a caller always
    // advances.
    if (measurer.textHeight(text.substr(0, wordEnd), width) > height)
      return cutAt(text, blank == kNone ? wordEnd : blank);
    if (wordEnd == kNone) return {std::string(text), std::nullopt};
    blank = wordEnd;
  }
}

}  // namespace lad
