// Public keys in the COSE form that security keys use: P-256 with ES256 (-7) and RSA with
// RS256 (-257). The key is kept as its CBOR bytes, so nothing secret is ever held.
#pragma once

#include <string>
#include <string_view>

namespace lad::platform {

// Empty when `coseKey` is a key of a kind this server can check signatures with; otherwise why
// not.
std::string coseKeyProblem(std::string_view coseKey);

// Whether `signature` is the key's signature over `message` (SHA-256). A key that cannot be
// read verifies nothing.
bool coseVerify(std::string_view coseKey, std::string_view message, std::string_view signature);

// SHA-256 of `data`, 32 raw bytes.
std::string sha256(std::string_view data);

}  // namespace lad::platform
