// What a day shows: its rows with something in them, each with its icon and its text or lines,
// in the order of the day's fields, as the list and the day editor show them.
#pragma once

#include <string>
#include <vector>

#include "core/value.h"
#include "shell/views/diary.h"

namespace lad {
class Context;
}

namespace lad::shell {

// Where the browser fetches the pictures of diary days.
inline constexpr std::string_view kPictureAddress = "/doc/picture/";

// One field row of a day as shown: its text, or its lines with their times.
DayRowView dayRowView(const Value& row);

// The cell of a day in the list from the day (its strings made) and its field rows.
DayCellView dayCell(const Context& context, const Map& day, const List& rows);

// The address of a picture file of the day, made new whenever the file changes so that the
// browser never shows an old one.
std::string pictureAddress(const std::string& path);

}  // namespace lad::shell
