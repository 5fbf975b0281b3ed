// Build tool of the resources: makes the database templates from SQL scripts and the
// translation table from its text source.
//
//   lad_resgen sql OUT.sqlite IN.sql [MORE.sql ...]
//   lad_resgen translate OUT.sqlite IN.tsv
//   lad_resgen content OUT_FOLDER IN.txt|IN.jsn [MORE ...]
//
// A fault is printed as "file:line: message" and ends the run with status 1, leaving no output.

#include <fstream>
#include <iostream>
#include <sstream>
#include <string_view>

#include "resources/tools/build_database.h"
#include "resources/tools/content_files.h"

namespace {

using lad::resgen::BuildFault;
using lad::resgen::SourceFile;

constexpr const char* kUsage =
    "usage: lad_resgen sql OUT.sqlite IN.sql [MORE.sql ...]\n"
    "       lad_resgen translate OUT.sqlite IN.tsv\n"
    "       lad_resgen content OUT_FOLDER IN.txt|IN.jsn [MORE ...]\n";

std::optional<SourceFile> readSource(const char* path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) return std::nullopt;
  std::ostringstream text;
  text << in.rdbuf();
  return SourceFile{path, text.str()};
}

int report(const BuildFault& fault) {
  std::cerr << fault.file.string();
  if (fault.error.line > 0) std::cerr << ':' << fault.error.line;
  std::cerr << ": " << fault.error.message << '\n';
  return 1;
}

}  // namespace

int main(int argc, char** argv) {
  const std::string_view mode = argc > 1 ? argv[1] : "";
  const bool sql = mode == "sql" && argc >= 4;
  const bool content = mode == "content" && argc >= 4;
  if (!sql && !content && !(mode == "translate" && argc == 4)) {
    std::cerr << kUsage;
    return 2;
  }
  std::vector<SourceFile> sources;
  for (int i = 3; i < argc; ++i) {
    auto source = readSource(argv[i]);
    if (!source) return report({argv[i], {0, "cannot read the file"}});
    sources.push_back(std::move(*source));
  }
  const auto fault = sql       ? lad::resgen::buildFromScripts(argv[2], sources)
                     : content ? lad::resgen::packageContent(argv[2], sources)
                               : lad::resgen::buildTranslationTable(argv[2], sources.front());
  return fault ? report(*fault) : 0;
}
