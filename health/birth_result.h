// The result of a birth, kept with a completed pregnancy as a JSON object text with the members
// `rost`, `ves`, `type` and `time`, told as a short or a long line.
#pragma once

#include <cstdint>
#include <string>

#include "core/value.h"

namespace lad {
class Context;
}  // namespace lad

namespace lad::health {

// "Рост: %@, Вес: %@", or the one of the two that is known; "-" for a value that is no JSON
// object text.
std::string shortBirthResult(const Context& context, const Value& birthresult);

// Height, weight and time of birth in one line that names the baby by `sex` (0 unknown, 1 boy,
// 2 girl); empty when nothing is known or the value is no JSON object text.
std::string longBirthResult(const Context& context, const Value& birthresult, std::int64_t sex);

}  // namespace lad::health
