// The edition's dictionary: the named entries that every list of choices offers, each known by
// its guid. An entry in memory is a map with "index" (guid), "cap" (name), "tp" (list number),
// "deleted", "celltype" and "checked".
#pragma once

#include <optional>
#include <string>

#include "core/value.h"

namespace lad {

class Store;
class StoreBracket;

// The message shown when the user tries to remove an entry that deleteConst refuses.
inline constexpr const char* kDeleteConstRefused = "Эту строку удалять нельзя!";
inline constexpr const char* kDeleteConstCaption = "Удаление строки";

// The entries of one list (cotype 1 or more, without removed ones) or of all lists (cotype 0 or
// below, removed ones too, so that old diary values still read), by "deleted desc, coname".
// An entry whose guid is among the checked ones ("<tr>"-joined) is marked. A load that passes
// the end of an illness refreshes the store's boleznId.
List loadConstList(Store& store, int cotype, const std::optional<std::string>& checked);

// The entry with that index, or nullptr. A text of at most 9 characters is an old integer
// index and stands for the fixed guid of group 2 with that number.
const Value* listByIndex(const std::optional<std::string>& guid, const List& entries);

// Adds an entry and gives its guid; a new one is made when coguid is nullopt. Runs in the
// open bracket when one is given, else in a bracket of its own.
std::string addConst(Store& store, int cotype, const std::string& coname, int deleted,
                     std::optional<std::string> coguid, StoreBracket* open = nullptr);

// Removes an ordinary entry (deleted 0) softly. False when nothing was removed: an entry the
// program brought or marked special is protected (show kDeleteConstRefused then).
bool deleteConst(Store& store, const std::string& guid);

// Adds the entries of another device that this one lacks. An entry already here is left as it
// is, whatever the other side did to it: the first one to arrive wins.
void correctConstList(Store& store, const List& entries);

// Appends an entry made in memory only, with deleted 0.
void addToList(List& target, const std::string& index, const std::string& name, int tp,
               bool checked);

}  // namespace lad
