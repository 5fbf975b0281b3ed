// Russian words in the form that agrees with a number: "1 штука", "2 штуки", "5 штук".
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/translation.h"

namespace lad {

// The form for n among those for 1, 2 and 5: `many` for 11 to 19 after the hundreds, otherwise
// by the last digit: 1 gives `one`, 2 to 4 give `few`, anything else (also 0) gives `many`.
std::string rusForms(std::int64_t n, std::string_view one, std::string_view few,
                     std::string_view many);
// The same with a fourth form for a fraction, taken for any n below 1.
std::string rusForms4(std::int64_t n, std::string_view one, std::string_view few,
                      std::string_view many, std::string_view fraction);
// The long name of a dosage unit ("мл.", "шт." ...) agreeing with a quantity text: "1/2" and the
// other listed fractions take the fraction form, any other text its leading integer. Translated;
// empty for a unit without a long name.
std::string rusScon(std::string_view quantity, std::string_view unit, const Translator& translator);

}  // namespace lad
