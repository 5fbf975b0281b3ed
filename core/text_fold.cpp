#include "core/text_fold.h"

namespace lad {

namespace {

constexpr unsigned char kLead0 = 0xD0;  // U+0400..U+043F
constexpr unsigned char kLead1 = 0xD1;  // U+0440..U+047F

}  // namespace

std::string foldCase(std::string_view text) {
  std::string out(text);
  for (std::size_t i = 0; i < out.size(); ++i) {
    auto c = static_cast<unsigned char>(out[i]);
    if (c >= 'A' && c <= 'Z') {
      out[i] = static_cast<char>(c + ('a' - 'A'));
      continue;
    }
    if ((c != kLead0 && c != kLead1) || i + 1 >= out.size()) continue;
    const auto next = static_cast<unsigned char>(out[i + 1]);
    if ((c == kLead0 && next == 0x81) || (c == kLead1 && next == 0x91)) {  // Ё, ё
      out[i] = static_cast<char>(kLead0);
      out[i + 1] = static_cast<char>(0xB5);                    // е
    } else if (c == kLead0 && next >= 0x90 && next <= 0x9F) {  // А..П
      out[i + 1] = static_cast<char>(next + 0x20);
    } else if (c == kLead0 && next >= 0xA0 && next <= 0xAF) {  // Р..Я
      out[i] = static_cast<char>(kLead1);
      out[i + 1] = static_cast<char>(next - 0x20);
    }
    ++i;
  }
  return out;
}

bool containsFolded(std::string_view foldedText, std::string_view foldedNeedle) {
  return foldedText.find(foldedNeedle) != std::string_view::npos;
}

}  // namespace lad
