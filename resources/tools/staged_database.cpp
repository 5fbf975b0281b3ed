#include "resources/tools/staged_database.h"

#include <fstream>
#include <system_error>

#include "core/atomic_file.h"

namespace lad::resgen {

StagedDatabase::StagedDatabase(std::filesystem::path target)
    : target_(std::move(target)), temp_(atomicTempPath(target_)) {
  // SQLite takes an empty file for a new database; a leftover of an earlier run is replaced.
  if (!std::ofstream(temp_, std::ios::binary | std::ios::trunc)) {
    error_ = "cannot create " + temp_.string();
    return;
  }
  db_ = SqliteConnection(temp_, SqliteConnection::Mode::ReadWrite);
  if (!db_.execute("begin")) error_ = db_.errorText();
}

StagedDatabase::~StagedDatabase() {
  if (published_) return;
  db_.close();
  std::error_code ignored;
  std::filesystem::remove(temp_, ignored);
}

bool StagedDatabase::publish() {
  if (!error_.empty()) return false;
  if (!db_.execute("commit")) {
    error_ = db_.errorText();
    return false;
  }
  db_.close();
  std::error_code ec;
  std::filesystem::rename(temp_, target_, ec);
  if (ec) {
    error_ = "cannot write " + target_.string() + ": " + ec.message();
    return false;
  }
  published_ = true;
  return true;
}

}  // namespace lad::resgen
