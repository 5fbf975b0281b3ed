// What a record shows: its display template filled in, and the identifier of its tick box.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "core/dates.h"

namespace lad::content {

// Fills the template: each token (split at " -()") that is "CAP" puts the record's text in place
// of every "CAP"; a token "WS<n>" puts the first day of week n from the start date in place of
// every occurrence of the token, "WE<n>" its last day, both as "dd.MM". Replacement is by plain
// substring, token after token, so "WS1" also changes the head of "WS10". Days are calendar
// days, so a change of daylight saving time does not shift a date.
std::string fillTemplate(std::string_view format, std::string_view text, Date start,
                         const DateCodec& dates);

// The text a record shows: the filled template, or the text when there is no template.
std::string shownText(std::string_view format, std::string_view text, Date start,
                      const DateCodec& dates);

// A tick identifier of `longestNumber` characters or fewer is a number made into a fixed
// identifier of group 2; a longer one stands as it is. The laid-out texts take numbers of up to
// nine characters, the day schedule's due items of up to four.
std::string tickGuid(std::string_view checkid, std::size_t longestNumber = 9);

}  // namespace lad::content
