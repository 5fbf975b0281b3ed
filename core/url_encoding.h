// Percent-encoding of UTF-8 texts for links, in two fixed character sets.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace lad {

// A query value: everything but ASCII letters, digits and "-._~" is encoded, so no character
// that structures a link survives. No text gives the empty text.
std::string stringToUrl(std::optional<std::string_view> text);
// The same for a text that is always there.
std::string urlString(std::string_view text);
// A path or a whole link: letters, marks and digits of any script and "-._~/?" stay as they are.
std::string encodeUrl(std::string_view text);

}  // namespace lad
