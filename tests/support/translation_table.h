// A German translation table of a test's own, written as the program reads it.
#pragma once

#include <sqlite3.h>

#include <filesystem>
#include <initializer_list>
#include <stdexcept>
#include <string>
#include <utility>

#include "core/translation.h"

namespace lad::testing {

using TranslationPair = std::pair<const char*, const char*>;

// Writes the Russian-German pairs to a table file and returns a translator prepared from it.
inline Translator germanTranslator(const std::filesystem::path& file,
                                   std::initializer_list<TranslationPair> pairs) {
  sqlite3* db = nullptr;
  if (sqlite3_open(file.c_str(), &db) != SQLITE_OK) throw std::runtime_error("cannot open table");
  std::string sql = "create table translate (rus text, ger text);";
  for (const auto& [rus, ger] : pairs)
    sql += std::string("insert into translate values ('") + rus + "', '" + ger + "');";
  const int rc = sqlite3_exec(db, sql.c_str(), nullptr, nullptr, nullptr);
  sqlite3_close(db);
  if (rc != SQLITE_OK) throw std::runtime_error("cannot write table");
  Translator translator;
  translator.prepare(2, file);
  return translator;
}

}  // namespace lad::testing
