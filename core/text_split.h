// The word wrap of the reports: how much of a text fits in a box, and what is left over.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace lad {

// Measures text as the reports draw it.
class TextMeasurer {
 public:
  virtual ~TextMeasurer() = default;
  // Height of the text wrapped at that width in the report font.
  virtual double textHeight(std::string_view text, double width) const = 0;
};

struct SplitText {
  std::string line;
  std::optional<std::string> ost;  // what does not fit; nullopt when nothing is left
};

// Joins the blank-separated words of the text one by one until one makes it taller than the
// height. `line` is the text before the blank ahead of that word and `ost` the text after that
// blank. A text without blanks, or whose words all fit, is all `line`. A first word that is
// higher than the room by itself stays in `line` all the same, so that a caller always advances.
SplitText splitString(std::string_view text, double width, double height,
                      const TextMeasurer& measurer);

}  // namespace lad
