// The shape of a binary property list, looked at before the list is read: the reader builds
// every reference anew and recurses through nested containers, so a list that nests very deeply
// would exhaust the stack, and one that refers to the same containers over and over would
// expand past any memory.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace lad::cloud {

struct PropertyListLimits {
  int deepest = 32;              // containers inside containers
  std::size_t most = 1'000'000;  // nodes, every reference counted
};

// True when the list's tables are in bounds and its expanded tree stays within the limits;
// otherwise false and the reason.
bool propertyListWithin(std::span<const std::uint8_t> bytes, const PropertyListLimits& limits,
                        std::string* error);

}  // namespace lad::cloud
