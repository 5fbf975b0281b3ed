// The field rows of the day editor: one row for each field that a day of the edition can
// hold, in the order the editor shows them.
#pragma once

#include "core/value.h"

namespace lad {

class Context;

// Empties rows and adds the edition's field rows: "tp", "listid", "caption", "pic", "editcap",
// "editdescr", "text" and "source" (both ""), "field", "edit" and "required" (false). The texts
// pass through the translation table.
void initTodayNoteStruct(const Context& context, List& rows);

}  // namespace lad
