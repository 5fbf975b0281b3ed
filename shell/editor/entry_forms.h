// The editors of one entry of a multi-entry field of a day (pressure, fluids): an entry of
// the present JSON list, or a new one starting at the time now.
#pragma once

#include <optional>

#include "shell/editor/field_editor.h"

namespace lad::shell {

// pos: the entry of value to edit, -1 for a new one. Nullopt for a field without an entry
// editor here or a position the value lacks.
// The entry at pos of a JSON list value, as the values of a form; nullopt when there is none.
std::optional<Map> entryAt(std::string_view value, int pos);

std::optional<FieldEditor> entryForm(const Context& context, std::string_view field,
                                     std::string_view value, int pos);

}  // namespace lad::shell
