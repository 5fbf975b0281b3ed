// Diary records: one row per profile, day and keyword, its value a text in the keyword's form.
#pragma once

#include <optional>
#include <string>

#include "core/value.h"

namespace lad {

class Store;
class StoreBracket;

// Inside an open bracket. An empty value writes nothing; withDelete first removes the day's
// row of that keyword; justNew keeps a row that is there already.
void insertValue(Store& store, StoreBracket& bracket, const std::string& type,
                 const std::string& value, Date day, const std::string& gid, bool withDelete,
                 bool justNew);
void deleteValue(Store& store, StoreBracket& bracket, const std::string& type, Date day,
                 const std::string& gid);

// Removes the day's row of the keyword, or with no keyword every row of the day.
void noteDeleteValue(Store& store, Date day, const std::optional<std::string>& type,
                     const std::string& gid);

// Inside an open bracket: the value of that day, or of the latest day strictly before it
// (which the store keeps as the last value's date); "" when there is none.
std::string getDateValue(Store& store, StoreBracket& bracket, Date day, const std::string& type,
                         const std::string& gid);
std::string getLastDateValue(Store& store, StoreBracket& bracket, Date day, const std::string& type,
                             const std::string& gid);

// The number of the latest value up to and including the day. Where that is 0 a weight (and in
// the child's diary a height) falls back on the profile's own.
double getLastValue(Store& store, Date day, const std::string& type, const std::string& gid);
// The day of the value found by the last of the two calls above that found one.
std::optional<Date> getLastValueDate(const Store& store);

// How a day reaches the store: from the day editor, or from another device.
enum NoteRegime { kNoteFromEditor = 1, kNoteFromCloud = 2 };

// Replaces the whole day of the profile by the field rows ("tp", "field", "source"): a row
// with an empty source leaves no record. All or nothing: a failure half-way leaves the day as
// it was. From another device, the dictionary entries this one lacks are added afterwards.
void saveNoteData(Store& store, NoteRegime regime, const List& rows, const List& listData,
                  const std::string& gid, Date day);

}  // namespace lad
