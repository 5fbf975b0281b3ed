// A thin owner of SQLite connections and statements. Nothing here throws: a connection that
// cannot open is simply not open, a statement that cannot be prepared is not ready, and the
// callers end in their empty results.
#pragma once

#include <sqlite3.h>

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace lad {

class SqliteStatement;

class SqliteConnection {
 public:
  enum class Mode { ReadOnly, ReadWrite };

  SqliteConnection() = default;
  // Opens an existing file; a missing file is not created.
  SqliteConnection(const std::filesystem::path& file, Mode mode);
  ~SqliteConnection();
  SqliteConnection(SqliteConnection&& other) noexcept;
  SqliteConnection& operator=(SqliteConnection&& other) noexcept;
  SqliteConnection(const SqliteConnection&) = delete;
  SqliteConnection& operator=(const SqliteConnection&) = delete;

  bool isOpen() const { return db_ != nullptr; }
  void close();
  sqlite3* handle() const { return db_; }

  // Prepares one statement; the result is not ready when the SQL does not prepare.
  SqliteStatement prepare(std::string_view sql) const;
  // Runs a statement with no parameters to its end; false on any failure.
  bool execute(std::string_view sql) const;
  std::int64_t lastInsertRowId() const;
  std::string errorText() const;

 private:
  sqlite3* db_ = nullptr;
};

class SqliteStatement {
 public:
  SqliteStatement() = default;
  explicit SqliteStatement(sqlite3_stmt* stmt) : stmt_(stmt) {}
  ~SqliteStatement();
  SqliteStatement(SqliteStatement&& other) noexcept;
  SqliteStatement& operator=(SqliteStatement&& other) noexcept;
  SqliteStatement(const SqliteStatement&) = delete;
  SqliteStatement& operator=(const SqliteStatement&) = delete;

  bool ready() const { return stmt_ != nullptr; }

  // Parameters count from 1. Texts are bound as transient copies.
  void bindText(int index, std::string_view text);
  void bindText(int index, const char* text) { bindText(index, std::string_view(text)); }
  void bindText(int index, const std::string& text) { bindText(index, std::string_view(text)); }
  void bindText(int index, const std::optional<std::string>& text);  // nullopt binds NULL
  void bindInt(int index, std::int64_t value);
  void bindNull(int index);

  // True while a row is at hand; false at the end and on any failure.
  bool step();
  // Steps once for a statement that yields no rows; true when it ran to its end.
  bool run();
  void reset();

  bool isNull(int column) const;
  std::optional<std::string> columnText(int column) const;  // nullopt for NULL
  std::int64_t columnInt(int column) const;
  sqlite3_stmt* handle() const { return stmt_; }

 private:
  sqlite3_stmt* stmt_ = nullptr;
};

}  // namespace lad
