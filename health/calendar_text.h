// Text pieces that the calendar and age texts share: word forms through the translation table,
// and the pattern filling of core/text_fill.h.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/text_fill.h"

namespace lad {
class Context;
}  // namespace lad

namespace lad::health {

// The word form that agrees with n, translated.
std::string wordFor(const Context& context, std::int64_t n, std::string_view one,
                    std::string_view few, std::string_view many);

}  // namespace lad::health
