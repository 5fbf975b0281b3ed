// Date patterns made only of fixed-width numbers, month names and literal text, written and read
// by hand. Stored and shown dates use nothing else, and these run thousands of times while a
// year of the diary loads; any other pattern is left to the full formatter.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace lad {

// A wall-clock moment: milliseconds since 1970-01-01 00:00:00 of the same wall clock.
using LocalMillis = std::int64_t;

// Month names as a date pattern writes them, January first.
using MonthNames = std::array<std::string, 12>;

// Writes a wall-clock moment in a pattern made of the fields yyyy, yy, MM, MMMM, dd, HH, mm, ss
// and literal text (quotes as in date patterns). nullopt for any other pattern, and for a year
// outside 1..9999.
std::optional<std::string> formatDatePattern(LocalMillis local, std::string_view pattern,
                                             const MonthNames& months);

// Reads a text that fits a pattern of the fields yyyy, MM, dd, HH, mm, ss and literal text
// exactly, each number with all its digits. Fields the pattern lacks are those of
// 1970-01-01 00:00:00. nullopt for anything else, including a day or time that does not exist.
std::optional<LocalMillis> parseDatePattern(std::string_view text, std::string_view pattern);

}  // namespace lad
