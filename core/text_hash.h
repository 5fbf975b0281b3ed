// Hash of texts for maps with std::string keys that are looked up by std::string_view, without
// making a string for each lookup.
#pragma once

#include <functional>
#include <string_view>

namespace lad {

struct TextHash {
  using is_transparent = void;
  std::size_t operator()(std::string_view s) const { return std::hash<std::string_view>{}(s); }
};

}  // namespace lad
