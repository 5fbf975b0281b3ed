// A diary day turned into the field rows of the day editor, each with the text it shows.
#pragma once

#include "core/value.h"

namespace lad {

class Context;

// Copies the day into the rows (the edition's rows when the list is empty): each field row
// takes the day's value under its keyword as "source" and gets its text; the photo row takes
// the day's picture.
void noteStructToTodayNote(const Context& context, const Map& day, List& rows,
                           const List& listData);

// Makes the row's "text", or for the list kinds its "multiarray", from its "source".
void updateNoteToday(const Context& context, Map& row, const List& listData,
                     std::optional<Date> forDate);

}  // namespace lad
