#include "store/selections.h"

#include "core/context.h"
#include "store/store.h"
#include "store/tables.h"

namespace lad {

namespace {

// The edition's selection table, with its profile guid column. The woman's edition names a
// table that does not exist, so its statements fail to prepare and nothing happens.
const EditionTables& tablesOf(const Store& store) {
  return tablesFor(store.context().values().appid);
}

void runTick(const StoreBracket& bracket, const std::string& sql, int seltypeid,
             const std::string& tagguid, const std::string& gid) {
  SqliteStatement st = bracket.db()->prepare(sql);
  st.bindInt(1, seltypeid);
  st.bindText(2, tagguid);
  st.bindText(3, gid);
  st.run();
}

}  // namespace

void setCheckData(Store& store, int seltypeid, const std::string& tagguid, bool check,
                  const std::string& gid) {
  const EditionTables& t = tablesOf(store);
  const std::string table = t.selection;
  const std::string guid = t.guid;
  StoreBracket bracket = store.connectToBase();
  if (!bracket.db()) return;
  runTick(bracket, "delete from " + table + " where seltypeid=? and tagguid=? and " + guid + "=?",
          seltypeid, tagguid, gid);
  if (check)
    runTick(bracket, "insert into " + table + " (seltypeid, tagguid, " + guid + ") values (?,?,?)",
            seltypeid, tagguid, gid);
  bracket.markChanged();
}

std::vector<std::string> loadCheckData(Store& store, int seltypeid, const std::string& gid) {
  const EditionTables& t = tablesOf(store);
  std::vector<std::string> tags;
  StoreBracket bracket = store.connectToBase();
  if (!bracket.db()) return tags;
  SqliteStatement rows =
      bracket.db()->prepare("select tagguid from " + std::string(t.selection) +
                            " where seltypeid=? and " + t.guid + "=? order by pselid");
  rows.bindInt(1, seltypeid);
  rows.bindText(2, gid);
  while (rows.step()) tags.push_back(rows.columnText(0).value_or(""));
  return tags;
}

}  // namespace lad
