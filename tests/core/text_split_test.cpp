#include "core/text_split.h"

#include <gtest/gtest.h>

#include <cmath>

namespace lad {
namespace {

// Lines of `width` characters, 10 points each.
class FixedWidthMeasurer : public TextMeasurer {
 public:
  double textHeight(std::string_view text, double width) const override {
    const double lines = std::ceil(static_cast<double>(text.size()) / width);
    return std::max(lines, 1.0) * 10;
  }
};

TEST(TextSplit, TakesTheWordsThatFitAndLeavesTheRest) {
  const FixedWidthMeasurer measurer;
  struct Case {
    const char* text;
    double width, height;
    const char* line;
    std::optional<std::string> ost;
  };
  const Case cases[] = {
      {"one two three four five six", 10, 20, "one two three four", "five six"},
      {"one two three four five six", 30, 10, "one two three four five six", std::nullopt},
      {"averyveryverylongword", 10, 20, "averyveryverylongword", std::nullopt},  // no blank
      {"averyveryverylongword next", 10, 20, "averyveryverylongword", "next"},
      {"0123456789 012345678 ", 10, 20, "0123456789 012345678", std::nullopt},
      {"", 10, 20, "", std::nullopt},
  };
  for (const Case& c : cases) {
    const SplitText split = splitString(c.text, c.width, c.height, measurer);
    EXPECT_EQ(split.line, c.line) << c.text << " at " << c.width;
    EXPECT_EQ(split.ost, c.ost) << c.text << " at " << c.width;
  }
}

}  // namespace
}  // namespace lad
