// A new database file that appears under its final name only once it is complete. It is built
// under a temporary name beside the target, in one transaction, and renamed at the end; dropped
// unfinished, it leaves nothing behind and the target stays as it was.
#pragma once

#include <filesystem>
#include <string>

#include "core/sqlite.h"

namespace lad::resgen {

class StagedDatabase {
 public:
  explicit StagedDatabase(std::filesystem::path target);
  ~StagedDatabase();
  StagedDatabase(const StagedDatabase&) = delete;
  StagedDatabase& operator=(const StagedDatabase&) = delete;

  // Empty while the database is open for writing; otherwise why it is not.
  const std::string& error() const { return error_; }
  const SqliteConnection& db() const { return db_; }

  // Commits, closes and moves the file to the target name; false when any step fails, with
  // the reason in error().
  bool publish();

 private:
  std::filesystem::path target_;
  std::filesystem::path temp_;
  SqliteConnection db_;
  std::string error_;
  bool published_ = false;
};

}  // namespace lad::resgen
