#include "core/translation.h"

#include <algorithm>

#include "core/sqlite.h"

namespace lad {

namespace {

// The French query names a column the table does not have, so it never prepares and the
// French interface stays Russian. That is the program's long-standing behaviour and is kept.
const char* queryFor(int langid) {
  return langid == 3 ? "select res, fra from translate where nullif(fra,'') is not null"
                     : "select rus, ger from translate where nullif(ger,'') is not null";
}

// The table stores a line break as "|".
std::string withLineBreaks(std::string text) {
  std::replace(text.begin(), text.end(), '|', '\n');
  return text;
}

}  // namespace

void Translator::prepare(int langid, const std::filesystem::path& tableFile) {
  table_.clear();
  if (langid == 1) return;
  SqliteConnection db(tableFile, SqliteConnection::Mode::ReadOnly);
  SqliteStatement rows = db.prepare(queryFor(langid));
  while (rows.step()) {
    auto from = rows.columnText(0), to = rows.columnText(1);
    if (from && to) table_.emplace(withLineBreaks(*from), withLineBreaks(*to));
  }
}

std::string Translator::translate(std::string_view text) const {
  auto found = table_.find(text);
  return found == table_.end() ? std::string(text) : found->second;
}

}  // namespace lad
