// The reading matter delivered with the program: every file is read with the content parser
// before any is copied, so that a faulty record fails the build instead of a screen.
#pragma once

#include <filesystem>
#include <optional>
#include <vector>

#include "resources/tools/build_database.h"

namespace lad::resgen {

// The first fault of a content file, told by the line its record starts on: a JSON text that is
// not an array, a plain-text record that does not parse, or a faulty row of the week notices.
std::optional<SourceError> checkContent(const SourceFile& source);

// Checks every file, then copies them all into the folder (made when missing) under their own
// names; on a fault nothing is copied.
std::optional<BuildFault> packageContent(const std::filesystem::path& folder,
                                         const std::vector<SourceFile>& sources);

}  // namespace lad::resgen
