#include "resources/tools/build_database.h"

#include "resources/tools/sql_script.h"
#include "resources/tools/staged_database.h"
#include "resources/tools/translation_source.h"

namespace lad::resgen {

namespace {

std::optional<BuildFault> outputFault(const std::filesystem::path& out, std::string message) {
  return BuildFault{out, {0, std::move(message)}};
}

std::optional<BuildFault> publish(StagedDatabase& staged, const std::filesystem::path& out) {
  if (!staged.publish()) return outputFault(out, staged.error());
  return std::nullopt;
}

bool insertRows(const SqliteConnection& db, const std::vector<TranslationRow>& rows) {
  if (!db.execute("create table translate (rus text, ger text, fra text)")) return false;
  SqliteStatement insert = db.prepare("insert into translate (rus, ger, fra) values (?, ?, ?)");
  for (const TranslationRow& row : rows) {
    insert.reset();
    insert.bindText(1, std::string_view(row.rus));
    insert.bindText(2, std::string_view(row.ger));
    insert.bindText(3, std::string_view(row.fra));
    if (!insert.run()) return false;
  }
  return true;
}

}  // namespace

std::optional<BuildFault> buildFromScripts(const std::filesystem::path& out,
                                           const std::vector<SourceFile>& scripts) {
  StagedDatabase staged(out);
  if (!staged.error().empty()) return outputFault(out, staged.error());
  for (const SourceFile& script : scripts)
    if (auto fault = runScript(staged.db(), script.text)) return BuildFault{script.path, *fault};
  return publish(staged, out);
}

std::optional<BuildFault> buildTranslationTable(const std::filesystem::path& out,
                                                const SourceFile& source) {
  TranslationSource parsed = parseTranslationSource(source.text);
  if (parsed.error) return BuildFault{source.path, *parsed.error};
  StagedDatabase staged(out);
  if (!staged.error().empty()) return outputFault(out, staged.error());
  if (!insertRows(staged.db(), parsed.rows)) return outputFault(out, staged.db().errorText());
  return publish(staged, out);
}

}  // namespace lad::resgen
