// The stored value that a field editor makes of its rows when it closes.
#pragma once

#include <string>
#include <string_view>

#include "core/value.h"

namespace lad {

// The value of an editor of kind tp, from its rows (maps with "tp", "field" and "source", row 0
// being a heading in most editors) and the present value. The list kinds edit the present JSON
// list: pos is the entry that the rows replace, -1 for a new one. An unknown kind keeps the
// present value.
std::string jsonFromDic(int tp, std::string_view oldValue, const List& rows, int pos);

}  // namespace lad
