// A list row of the field editor offers the entries of its dictionary list, the ones its
// source names ticked.
#pragma once

#include <string_view>

#include "shell/editor/field_editor.h"

namespace lad {
class Store;
}

namespace lad::shell {

// Fills the row's "listdata" from the dictionary list `listid`; nothing for a list below 1.
void fillListEntries(FieldEditor& editor, Store& store, std::string_view field, int listid);

}  // namespace lad::shell
