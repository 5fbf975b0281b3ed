// The named points of the body pictures, kept by month in a JSON file of the resources:
// {"1": [{"name": ..., "x": ..., "y": ...}], ...}, in the pictures' own pixels.
#pragma once

#include <filesystem>
#include <vector>

#include "core/translation.h"
#include "shell/views/week.h"

namespace lad::shell {

// The month's points with their names translated; none when the file or month is missing.
std::vector<HintView> bodyHints(const std::filesystem::path& file, int month,
                                const Translator& translator);

}  // namespace lad::shell
