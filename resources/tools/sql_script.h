// Runs an SQL script, statement by statement, against an open database.
#pragma once

#include <optional>
#include <string_view>

#include "core/sqlite.h"
#include "resources/tools/source_error.h"

namespace lad::resgen {

// Runs every statement in order and stops at the first that fails, telling SQLite's message
// and the script line at which SQLite found the fault (or on which the statement begins).
std::optional<SourceError> runScript(const SqliteConnection& db, std::string_view script);

}  // namespace lad::resgen
