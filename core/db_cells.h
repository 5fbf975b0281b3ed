// Dates and texts in database cells: dates as "yyyy-MM-dd", or "yyyy-MM-dd HH:mm:ss" for a
// moment, in the codec's zone.
#pragma once

#include <optional>
#include <string>

#include "core/dates.h"
#include "core/sqlite.h"

namespace lad {

// The date of a column; nullopt for NULL and for a text that is not a date of the form.
std::optional<Date> dateFromBase(const SqliteStatement& statement, int column, bool time,
                                 const DateCodec& codec);
// Binds the date as text of the form, or NULL for no date. Parameters count from 1.
void dateToBase(SqliteStatement& statement, int index, std::optional<Date> date, bool time,
                const DateCodec& codec);
// The UTF-8 text of a column; nullopt for NULL.
std::optional<std::string> stringFromBase(const SqliteStatement& statement, int column);

}  // namespace lad
