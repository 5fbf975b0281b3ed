// Identifiers made by the program.
#pragma once

#include <string>

namespace lad {

// A new random upper-case identifier in the 8-4-4-4-12 shape.
std::string newID();

}  // namespace lad
