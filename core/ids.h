// Identifiers made by the program.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace lad {

// A new random upper-case identifier in the 8-4-4-4-12 shape.
std::string newID();

// A fixed identifier for a thing numbered before identifiers were random, or seeded by the
// program: "00000000-0000-0000-000<group>-" and the last 12 characters of n after twelve zeros.
std::string newID2(int group, std::int64_t n);

// Whether text has the 8-4-4-4-12 shape of hex digits (either case) that identifiers have;
// what comes from outside is checked with it before it names a file.
bool isID(std::string_view text);

}  // namespace lad
