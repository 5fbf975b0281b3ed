// The diary's search: whether the rows of a day answer a search text.
#pragma once

#include <string_view>

#include "core/value.h"

namespace lad {
class Context;
}

namespace lad::shell {

// The rows are a day's field rows with their texts. A day matches when the search text is the
// name of a field that has a value in it ("Вес" finds every weighed day), or when a row's text
// holds it: the caption and time of each line of temperatures and reminders, the sentence of
// each medicine, the text of the other rows. Case and "ё" do not matter.
bool dayMatches(const Context& context, const List& rows, std::string_view search);

}  // namespace lad::shell
