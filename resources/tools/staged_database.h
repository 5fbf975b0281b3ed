// A new database file that appears under its final name only once it is complete. It is built
// under a temporary name beside the target and renamed at the end; dropped unfinished, it
// leaves nothing behind and the target stays as it was.
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

  // Not open when the temporary file could not be made.
  const SqliteConnection& db() const { return db_; }

  // Closes the database and moves it to the target name; false, with *error, on failure.
  bool publish(std::string* error);

 private:
  std::filesystem::path target_;
  std::filesystem::path temp_;
  SqliteConnection db_;
  bool published_ = false;
};

}  // namespace lad::resgen
