// The lines that a day's list fields show, and back: temperatures, reminders, pressure and
// liquid measurements (one line each with a caption and a time), medicine courses and spans of
// sleep or walks (one line each with its sentence and its own JSON).
#pragma once

#include <optional>
#include <string>

#include "core/value.h"

namespace lad {

class Context;

// "120/80 - после сна": the two pressures of a measurement, and its comment when there is one.
std::string pressureToString(const Value& measurement);
// "300>200 - вечер": the liquid taken in and passed, and the comment.
std::string zhidToString(const Value& measurement);

// The lines of a field of kind 4, 5, 30 or 31: maps with "cap", "time" and "index" (from 1). A
// JSON list gives one line per object; an old "<tr>"/"<td>" text gives the time and caption of
// each item, whatever the kind. No value gives no lines.
List multiFromString(const std::optional<std::string>& value, int kind);

// Appends the lines of a field of kind 23 (courses) or 29 (spans): maps with "source" (the
// object's own JSON) and "text" (its sentence). An old text of kind 23 gives one line with the
// whole value as "text"; one of kind 29 gives nothing.
void multi2FromString(const Context& context, List& target, const std::optional<std::string>& value,
                      const List& listData, int kind, std::optional<Date> forDate);

// The stored value of lines made by multiFromString: each line without "cap" and "index" and
// with the caption under "temp", as a JSON list.
std::string multiToString(const List& lines);
// The stored value of the lines as they stand.
std::string multi2ToString(const List& lines);

}  // namespace lad
