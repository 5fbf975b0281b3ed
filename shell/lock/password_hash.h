// The lock's code is kept as a salted, memory-hard hash: the settings file never holds it in
// clear.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace lad::shell {

// The encoded hash of a code; nullopt when the hashing itself fails (out of memory).
std::optional<std::string> hashPassword(std::string_view code);
// Whether the stored value is a hash (older installations kept the code itself).
bool isPasswordHash(std::string_view stored);
// Whether the code is the one that the stored value was made from; false for a damaged hash. A
// code kept in clear by an older installation is compared as it is.
bool passwordMatches(const std::string& stored, std::string_view code);

}  // namespace lad::shell
