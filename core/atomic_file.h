// Whole files: reading one at once, and a replacement that a crash cannot leave half-written (the
// new content goes to a temporary file beside the target, is flushed to disk, and is renamed
// over the target).
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace lad {

// The whole content of a file; nullopt when it cannot be read.
std::optional<std::string> readWholeFile(const std::filesystem::path& file);

// Returns false and fills *error (if given) when any step fails; the target is then untouched.
bool writeFileAtomically(const std::filesystem::path& target, std::string_view content,
                         std::string* error = nullptr);

// Copies a whole file under the temporary name, then renames it into place, so that a failed
// copy never leaves a half file under the target's name. False when any step fails.
bool copyFileAtomically(const std::filesystem::path& from, const std::filesystem::path& to);

// Moves a file that must be kept to `to`, or, when that name is taken, to the first free one
// of "<stem>-2<ext>", "<stem>-3<ext>" ...: a kept file never replaces another. The path it went
// to, or nullopt when it could not be moved.
std::optional<std::filesystem::path> moveAside(const std::filesystem::path& from,
                                               const std::filesystem::path& to);

// The temporary name used for target while it is being replaced.
std::filesystem::path atomicTempPath(const std::filesystem::path& target);

}  // namespace lad
