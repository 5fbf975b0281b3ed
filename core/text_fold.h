// Texts compared without regard to case, as a search in the diary compares them.
#pragma once

#include <string>
#include <string_view>

namespace lad {

// The text in lower case for Latin and Russian letters, with "ё" read as "е"; every other
// character (and any byte that is not valid UTF-8) stays as it is.
std::string foldCase(std::string_view text);

// Whether the folded text holds the folded needle; an empty needle is held by every text.
bool containsFolded(std::string_view foldedText, std::string_view foldedNeedle);

}  // namespace lad
