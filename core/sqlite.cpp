#include "core/sqlite.h"

#include <utility>

namespace lad {

SqliteConnection::SqliteConnection(const std::filesystem::path& file, Mode mode) {
  const int flags = mode == Mode::ReadOnly ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE;
  if (sqlite3_open_v2(file.c_str(), &db_, flags | SQLITE_OPEN_NOMUTEX, nullptr) != SQLITE_OK)
    close();
}

SqliteConnection::~SqliteConnection() {
  close();
}

SqliteConnection::SqliteConnection(SqliteConnection&& other) noexcept
    : db_(std::exchange(other.db_, nullptr)) {}

SqliteConnection& SqliteConnection::operator=(SqliteConnection&& other) noexcept {
  if (this != &other) {
    close();
    db_ = std::exchange(other.db_, nullptr);
  }
  return *this;
}

void SqliteConnection::close() {
  // sqlite3_close_v2 defers the close until every statement is finalised.
  if (db_) sqlite3_close_v2(db_);
  db_ = nullptr;
}

SqliteStatement SqliteConnection::prepare(std::string_view sql) const {
  if (!db_) return {};
  sqlite3_stmt* stmt = nullptr;
  if (sqlite3_prepare_v2(db_, sql.data(), static_cast<int>(sql.size()), &stmt, nullptr) !=
      SQLITE_OK) {
    sqlite3_finalize(stmt);
    return {};
  }
  return SqliteStatement(stmt);
}

bool SqliteConnection::execute(std::string_view sql) const {
  SqliteStatement st = prepare(sql);
  return st.ready() && st.run();
}

std::int64_t SqliteConnection::lastInsertRowId() const {
  return db_ ? sqlite3_last_insert_rowid(db_) : 0;
}

std::string SqliteConnection::errorText() const {
  return db_ ? sqlite3_errmsg(db_) : "no database";
}

SqliteStatement::~SqliteStatement() {
  sqlite3_finalize(stmt_);
}

SqliteStatement::SqliteStatement(SqliteStatement&& other) noexcept
    : stmt_(std::exchange(other.stmt_, nullptr)) {}

SqliteStatement& SqliteStatement::operator=(SqliteStatement&& other) noexcept {
  if (this != &other) {
    sqlite3_finalize(stmt_);
    stmt_ = std::exchange(other.stmt_, nullptr);
  }
  return *this;
}

void SqliteStatement::bindText(int index, std::string_view text) {
  sqlite3_bind_text(stmt_, index, text.data(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
}

void SqliteStatement::bindText(int index, const std::optional<std::string>& text) {
  if (text)
    bindText(index, std::string_view(*text));
  else
    bindNull(index);
}

void SqliteStatement::bindInt(int index, std::int64_t value) {
  sqlite3_bind_int64(stmt_, index, value);
}

void SqliteStatement::bindNull(int index) {
  sqlite3_bind_null(stmt_, index);
}

bool SqliteStatement::step() {
  return stmt_ && sqlite3_step(stmt_) == SQLITE_ROW;
}

bool SqliteStatement::run() {
  if (!stmt_) return false;
  int rc;
  while ((rc = sqlite3_step(stmt_)) == SQLITE_ROW) {
  }
  return rc == SQLITE_DONE;
}

void SqliteStatement::reset() {
  if (stmt_) sqlite3_reset(stmt_);
}

bool SqliteStatement::isNull(int column) const {
  return sqlite3_column_type(stmt_, column) == SQLITE_NULL;
}

std::optional<std::string> SqliteStatement::columnText(int column) const {
  const unsigned char* text = sqlite3_column_text(stmt_, column);
  if (!text) return std::nullopt;
  return std::string(reinterpret_cast<const char*>(text),
                     static_cast<std::size_t>(sqlite3_column_bytes(stmt_, column)));
}

std::int64_t SqliteStatement::columnInt(int column) const {
  return sqlite3_column_int64(stmt_, column);
}

}  // namespace lad
