// The week notices of the main menu: rows separated by <tr>, each with the fields event id, week
// and text separated by <td>. The reader takes the first three fields of a row and compares the
// first two as numbers, so a row that lacks one, or holds no number there, is never shown.
#pragma once

#include <optional>
#include <string_view>

#include "resources/tools/source_error.h"

namespace lad::resgen {

// The name under which the notices are delivered among the content files.
inline constexpr std::string_view kWarningFileName = "warning.txt";

// The first row with fewer than three fields, or with an event id or week that is not a whole
// number, told by the line on which the row starts.
std::optional<SourceError> checkWarnings(std::string_view text);

}  // namespace lad::resgen
