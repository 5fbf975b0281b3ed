// Structured values in their old delimited forms lifted to the current JSON form. Nothing here
// throws: a missing field reads as empty.
#pragma once

#include <string>
#include <string_view>

#include "core/value.h"

namespace lad {

// The texts of the two picker rows of an old pilldoza, pillinter or pilllength ("i<td>j"),
// joined by "<td>"; a row outside its wheel reads as empty. The empty value, and the value of any
// other field, stays as it is.
std::string oldList(std::string_view field, std::string_view rows);

// One old item of the keyword, or the whole old value of uzi, birthresult, biosize and kovalue,
// as a map. The dictionary list, when given, names the foods of kovalue of kind 7. In the child
// diary (appid 2) the attachment files of analizy and documents take their current names.
Value oldValueToDic(int appid, std::string_view keyword, std::string_view item, const List* clist);

// The old value of the keyword in the current form: guid lists for the old index lists, JSON
// for the structured keywords, and any other value as it stands.
std::string oldValueToJson(int appid, std::string_view keyword, std::string_view value,
                           const List* clist);

}  // namespace lad
