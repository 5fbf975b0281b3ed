// What the field editor does to its rows on closing: first it brings the values into their
// stored forms, then it finds the first required row left empty.
#pragma once

#include <optional>

#include "core/context.h"
#include "shell/message_box.h"

namespace lad::shell {

// The ticked entries of a list row (a list of ids as the browser sends them, or a text already)
// joined by "<tr>", the way values keep them.
std::string tickedText(const Value& source);

// Scales write a value above 0 with the decimals of their type and empty anything else;
// segments keep their number, long texts a text (never null), photographs their bytes only.
void correctField(List& rows);

// The message for the first required row with an empty source; nullopt when none is.
std::optional<MessageBox> checkField(const Context& context, const List& rows);

}  // namespace lad::shell
