// Values as binary property lists: the form of the change files that installations exchange
// through the cloud folder. Texts, integers, reals, booleans, dates, data, lists and maps.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "core/value.h"

namespace lad::cloud {

// The value as a binary property list. Nulls have no form there: a map or list leaves them out,
// and a null alone comes out as an empty map.
Bytes toPropertyList(const Value& value);

// Reads a binary property list. Anything else, a list cut short, a kind of node that has no
// Value (keys, uids) or a nesting deeper than the diary ever writes gives nullopt and a reason.
std::optional<Value> fromPropertyList(std::span<const std::uint8_t> bytes, std::string* error);

}  // namespace lad::cloud
