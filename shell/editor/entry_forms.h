// The editors of one entry of a multi-entry field of a day (pressure, fluids, medicine
// courses): an entry of the present JSON list, or a new one with its defaults.
#pragma once

#include <optional>

#include "shell/editor/field_editor.h"

namespace lad::shell {

// The entry at pos of a JSON list value, as the values of a form; nullopt when there is none.
std::optional<Map> entryAt(std::string_view value, int pos);

// pos: the entry of value to edit, -1 for a new one; day: the diary day it is made on (a new
// course starts there). Nullopt for a field without an entry editor here or a position the
// value lacks.
std::optional<FieldEditor> entryForm(const Context& context, std::string_view field,
                                     std::string_view value, int pos, Date day);

}  // namespace lad::shell
