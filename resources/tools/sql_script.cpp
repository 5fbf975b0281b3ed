#include "resources/tools/sql_script.h"

#include <algorithm>
#include <cctype>

namespace lad::resgen {

namespace {

int lineAt(std::string_view script, std::size_t offset) {
  offset = std::min(offset, script.size());
  return 1 + static_cast<int>(std::count(script.begin(), script.begin() + offset, '\n'));
}

// Skips the blanks and "--" comments in front of a statement, so that a fault that SQLite
// cannot place is told at the statement's first word.
std::size_t statementStart(std::string_view script, std::size_t at) {
  while (at < script.size()) {
    if (std::isspace(static_cast<unsigned char>(script[at]))) {
      ++at;
    } else if (script.substr(at, 2) == "--") {
      at = script.find('\n', at);
      if (at == std::string_view::npos) return script.size();
    } else {
      break;
    }
  }
  return at;
}

SourceError faultAt(const SqliteConnection& db, std::string_view script, std::size_t start) {
  const int within = sqlite3_error_offset(db.handle());
  const std::size_t at =
      within >= 0 ? start + static_cast<std::size_t>(within) : statementStart(script, start);
  return {lineAt(script, at), db.errorText()};
}

}  // namespace

std::optional<SourceError> runScript(const SqliteConnection& db, std::string_view script) {
  if (!db.isOpen()) return SourceError{0, db.errorText()};
  const char* const begin = script.data();
  const char* const end = begin + script.size();
  const char* next = begin;
  while (next < end) {
    const char* start = next;
    sqlite3_stmt* raw = nullptr;
    const int rc =
        sqlite3_prepare_v2(db.handle(), start, static_cast<int>(end - start), &raw, &next);
    SqliteStatement statement(raw);
    const auto offset = static_cast<std::size_t>(start - begin);
    if (rc != SQLITE_OK) return faultAt(db, script, offset);
    // A stretch of only blanks and comments prepares to no statement at all.
    if (statement.ready() && !statement.run()) return faultAt(db, script, offset);
  }
  return std::nullopt;
}

}  // namespace lad::resgen
