// The sentence that says what a stored value means, for the day's rows, the list of days and
// the reports. Nothing here reads the database or throws: a value that cannot be read gives "".
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/context.h"
#include "core/value.h"

namespace lad {

// The names of the dictionary entries whose guids (or old indexes) are joined by "<tr>", one per
// line; of each name only the part before its first "<tr>". Guids not in the list are skipped.
std::string checkStringToRead(const std::optional<std::string>& value, const List& entries);

// One line per tooth code joined by "<tr>": a code up to 100 is a tooth that came through, one
// above it (less 100) a tooth that fell out; codes 1 to 20 name the milk teeth.
std::string toothStringToRead(const Context& context, const std::optional<std::string>& value);
// The dental name of milk tooth 1 to 20, untranslated; "" for any other number.
std::string toothName(std::int64_t code);

// The whole names of the entries that the JSON list of tests refers to by "captiontype", joined
// by ", ". The separator goes before each found name after the list's first position.
std::string analizyStringToRead(const std::optional<std::string>& value, const List& entries);

// The name of a diet by its number; "" for none or an unknown one.
std::string dietaStringToRead(const Context& context, const std::optional<std::string>& value);

// One line per non-empty body measure of the JSON object "bio1" to "bio5".
std::string biosizeStringToRead(const Context& context, const std::optional<std::string>& value);

// The kind of a day of the woman's cycle; an unknown kind is an ordinary day.
std::string womanDayToRead(const Context& context, int kind);

// "с <start> до <end> (<interval>)" of one span of sleep or a walk; "" for anything but a map.
// The text is made of times only, so it is not translated.
std::string intervalToRead2(const Value& span);

}  // namespace lad
