// Text pieces that the calendar and age texts share: patterns filled in order, word forms
// through the translation table, a capital first letter.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

namespace lad {

class Context;

// The pattern with each printf-style placeholder ("%d", "%@", "%.1f" ...) replaced in turn by
// the next of the already formatted arguments, and "%%" by "%". A placeholder left without an
// argument is dropped.
std::string fillIn(std::string_view pattern, std::initializer_list<std::string_view> args);

// The same with a whole number given for each placeholder.
std::string fillIn(std::string_view pattern, std::int64_t a);
std::string fillIn(std::string_view pattern, std::int64_t a, std::string_view b);

// The word form that agrees with n, translated.
std::string wordFor(const Context& context, std::int64_t n, std::string_view one,
                    std::string_view few, std::string_view many);

// The text with its first letter in upper case, whatever the script.
std::string capitalizeFirst(std::string_view text);

}  // namespace lad
