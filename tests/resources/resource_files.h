// The resource files made by the build, and small readers of their contents.
#pragma once

#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "core/sqlite.h"

namespace lad::testing {

inline std::filesystem::path resourceFile(const std::string& name) {
  return std::filesystem::path(LADANEYA_RESOURCES_DIR) / name;
}

inline SqliteConnection openResource(const std::string& name) {
  return SqliteConnection(resourceFile(name), SqliteConnection::Mode::ReadOnly);
}

// The fixed guid of a group and a number: a profile (1), a template entry (2), a seed (4).
inline std::string fixedGuid(int group, long long number) {
  char text[40];
  std::snprintf(text, sizeof text, "00000000-0000-0000-%04d-%012lld", group, number);
  return text;
}

// The first column of every row of a query, NULL read as an empty text.
inline std::vector<std::string> firstColumn(const SqliteConnection& db, const std::string& sql) {
  std::vector<std::string> values;
  SqliteStatement rows = db.prepare(sql);
  while (rows.step()) values.push_back(rows.columnText(0).value_or(""));
  return values;
}

inline long long countOf(const SqliteConnection& db, const std::string& sql) {
  SqliteStatement row = db.prepare(sql);
  return row.step() ? row.columnInt(0) : -1;
}

}  // namespace lad::testing
