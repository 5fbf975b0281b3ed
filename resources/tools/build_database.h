// The two things the tool makes: a database file from SQL scripts, and the translation table
// from its text source. Either the whole file appears under its name, or nothing does.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "resources/tools/source_error.h"

namespace lad::resgen {

struct SourceFile {
  std::filesystem::path path;
  std::string text;
};

struct BuildFault {
  std::filesystem::path file;  // the source at fault, or the output when writing failed
  SourceError error;
};

// Runs the scripts in order, as one transaction, into a new file.
std::optional<BuildFault> buildFromScripts(const std::filesystem::path& out,
                                           const std::vector<SourceFile>& scripts);

// Makes the table translate (rus, ger, fra) in a new file.
std::optional<BuildFault> buildTranslationTable(const std::filesystem::path& out,
                                                const SourceFile& source);

}  // namespace lad::resgen
