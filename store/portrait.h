// A profile's portrait: one picture file among the pictures, "child-<guid>.jpg", read by the
// settings, written and removed by their save and by the removal of the profile, and served to
// the browser.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "core/value.h"

namespace lad {

class Context;

std::filesystem::path portraitFile(const Context& context, const std::string& gid);

// The portrait's bytes as stored; nullopt when the profile has none.
std::optional<Bytes> readPortrait(const Context& context, const std::string& gid);

// Writes any picture that reads as one as the portrait, a JPEG of the best quality; a picture
// that does not read leaves the old portrait and says why.
bool writePortrait(const Context& context, const std::string& gid, const Bytes& picture,
                   std::string* why);

void removePortrait(const Context& context, const std::string& gid);

}  // namespace lad
