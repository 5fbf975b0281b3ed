#include "store/restore.h"

#include <string>
#include <system_error>
#include <vector>

#include "core/atomic_file.h"
#include "core/context.h"
#include "store/folders.h"
#include "store/reserve_copies.h"
#include "store/store.h"
#include "store/tables.h"

namespace lad {

namespace {

namespace fs = std::filesystem;

// Moves a database found in an old place over the live file. The live file is not thrown
// away but kept beside the reserve copies under a dated name.
void takeOver(Store& store, const fs::path& found) {
  std::error_code error;
  if (!fs::exists(found, error)) return;
  const fs::path live = store.liveFile();
  if (fs::exists(live, error)) {
    const Context& context = store.context();
    const std::string stamp = context.dates().dateToString(context.clock().now(), "yyMMdd-HHmmss");
    if (!moveAside(live, store.reservFolder() / (kReplacedPrefix + stamp + ".sqlite"))) return;
  }
  fs::rename(found, live, error);
}

bool copyTemplate(Store& store) {
  const Context& context = store.context();
  const fs::path from = *getSystemFolder(context, "Root") / context.edition().database;
  return copyFileAtomically(from, store.liveFile());
}

// The program's own dictionary entries, names with their tails, are written in the language of
// the first launch.
void translateEntries(Store& store) {
  const Context& context = store.context();
  if (context.values().langid == 1) return;
  const std::string table = tablesFor(context.values().appid).dictionary;
  StoreBracket bracket = store.connectToBase();
  if (!bracket.db()) return;
  struct Entry {
    std::int64_t coid;
    std::string name;
  };
  std::vector<Entry> entries;
  SqliteStatement rows = bracket.db()->prepare("select coid, coname from " + table);
  while (rows.step()) entries.push_back({rows.columnInt(0), rows.columnText(1).value_or("")});
  SqliteStatement update = bracket.db()->prepare("update " + table + " set coname=? where coid=?");
  for (const Entry& entry : entries) {
    const std::string translated = context.translate(entry.name);
    if (translated == entry.name) continue;
    update.bindText(1, translated);
    update.bindInt(2, entry.coid);
    update.run();
    update.reset();
    bracket.markChanged();
  }
}

}  // namespace

bool fromOldVersionNewRestore(Store& store) {
  const Context& context = store.context();
  std::error_code error;
  fs::create_directories(store.reservFolder(), error);
  const std::string name = context.edition().database;
  takeOver(store, context.libraryDir() / name);
  takeOver(store, context.documentsDir() / name);
  if (fs::exists(store.liveFile(), error)) return false;
  if (!copyTemplate(store)) return false;
  translateEntries(store);
  return true;
}

bool testBaseFile(Store& store) {
  const Context& context = store.context();
  SqliteConnection db(store.liveFile(), SqliteConnection::Mode::ReadOnly);
  if (!db.isOpen()) return true;
  const std::string table = tablesFor(context.values().appid).dictionary;
  return db.prepare("select * from " + table + " limit 1").step();
}

}  // namespace lad
