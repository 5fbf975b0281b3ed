// Base64 of raw bytes, for bytes that travel inside JSON.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/value.h"

namespace lad {

std::string base64Encode(const Bytes& bytes);
// Standard alphabet with padding; nullopt for anything else.
std::optional<Bytes> base64Decode(std::string_view text);

// The URL-safe alphabet ("-" and "_") without padding, as browsers send key material.
std::string base64UrlEncode(const Bytes& bytes);
// Nullopt for padding, the standard alphabet's "+" and "/", or a length no encoding has.
std::optional<Bytes> base64UrlDecode(std::string_view text);
// The same for raw bytes held in a string.
std::string base64UrlEncode(std::string_view raw);
std::optional<std::string> base64UrlDecodeString(std::string_view text);

}  // namespace lad
