// The delimited texts that values were stored in before JSON: lists split by one separator.
#pragma once

#include <string_view>
#include <vector>

namespace lad {

// The parts of a text between the separators; a text without one is a single part, and the
// empty text is one empty part.
std::vector<std::string_view> splitOn(std::string_view text, std::string_view separator);

}  // namespace lad
