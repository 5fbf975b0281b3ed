// Texts filled from patterns: printf-style placeholders replaced in turn by formatted
// arguments, fixed-point numbers that ignore the process locale, a capital first letter.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

namespace lad {

// The pattern with each printf-style placeholder ("%d", "%@", "%.1f" ...) replaced in turn by
// the next of the already formatted arguments, and "%%" by "%". A placeholder left without an
// argument is dropped.
std::string fillIn(std::string_view pattern, std::initializer_list<std::string_view> args);

// The same with a whole number given for each placeholder.
std::string fillIn(std::string_view pattern, std::int64_t a);
std::string fillIn(std::string_view pattern, std::int64_t a, std::string_view b);

// The number with that many decimals and "." as the point, as "%.<decimals>f" writes it.
std::string formatFixed(double value, int decimals);

// The text with its first letter in upper case, whatever the script.
std::string capitalizeFirst(std::string_view text);

}  // namespace lad
