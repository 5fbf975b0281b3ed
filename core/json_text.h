// Stored and exchanged values in JSON text. Nothing here throws: a text that does not parse
// reads as null, and a value that cannot be written writes as the empty text.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/value.h"

namespace lad {

// Whether a stored value is in the JSON form rather than an older one: a non-empty text opening
// with "[" or "{". Nothing is parsed to decide.
bool jsonIs(std::optional<std::string_view> text);

// The tree of a JSON text; null for no text or one that does not parse. The two differ only in
// name, after what the caller expects to get.
Value jsonToDictionary(std::optional<std::string_view> text);
Value jsonToArray(std::optional<std::string_view> text);

// A list or map as indented JSON over several lines; the empty text for any other value.
std::string jsonFromObject(const Value& value);

}  // namespace lad
