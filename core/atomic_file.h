// Whole-file replacement that a crash cannot leave half-written: the new content goes to a
// temporary file beside the target, is flushed to disk, and is renamed over the target.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace lad {

// Returns false and fills *error (if given) when any step fails; the target is then untouched.
bool writeFileAtomically(const std::filesystem::path& target, std::string_view content,
                         std::string* error = nullptr);

// The temporary name used for target while it is being replaced.
std::filesystem::path atomicTempPath(const std::filesystem::path& target);

}  // namespace lad
