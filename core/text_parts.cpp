#include "core/text_parts.h"

namespace lad {

std::vector<std::string_view> splitOn(std::string_view text, std::string_view separator) {
  std::vector<std::string_view> parts;
  for (std::size_t from = 0;;) {
    const std::size_t at = text.find(separator, from);
    parts.push_back(text.substr(from, at - from));
    if (at == std::string_view::npos) return parts;
    from = at + separator.size();
  }
}

}  // namespace lad
