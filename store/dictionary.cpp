#include "store/dictionary.h"

#include <sqlite3.h>

#include <set>
#include <string_view>

#include "core/context.h"
#include "core/ids.h"
#include "core/text_parts.h"
#include "store/store.h"
#include "store/tables.h"

namespace lad {

namespace {

constexpr int kIllnessList = 3;
constexpr int kSpecialEntry = 4;
constexpr std::size_t kLongestOldIndex = 9;
constexpr int kOldIndexGroup = 2;

Value makeEntry(const std::string& index, const std::string& cap, std::int64_t tp,
                std::int64_t deleted, bool checked) {
  Map m;
  m.set("index", index);
  m.set("cap", cap);
  m.set("tp", tp);
  m.set("deleted", deleted);
  m.set("celltype", 1);
  m.set("checked", checked);
  return Value(std::move(m));
}

// The guids of a "<tr>"-joined text.
std::set<std::string, std::less<>> splitGuids(const std::optional<std::string>& text) {
  std::set<std::string, std::less<>> guids;
  if (!text) return guids;
  for (std::string_view guid : splitOn(*text, "<tr>")) guids.emplace(guid);
  return guids;
}

std::string loadSql(const std::string& table, int cotype) {
  if (cotype < 1)
    return "select coguid, coname, cotype, deleted from " + table +
           " order by deleted desc, coname";
  return "select coguid, coname, cotype,deleted from " + table +
         " where cotype=? and deleted<>1 order by deleted desc, coname";
}

std::string dictionaryOf(const Store& store) {
  return tablesFor(store.context().values().appid).dictionary;
}

void insertConst(const Store& store, StoreBracket& bracket, int cotype, const std::string& coname,
                 int deleted, const std::string& coguid) {
  if (!bracket.db()) return;
  SqliteStatement st = bracket.db()->prepare("insert into " + dictionaryOf(store) +
                                             " (coname, cotype, deleted, coguid) values (?,?,?,?)");
  st.bindText(1, coname);
  st.bindInt(2, cotype);
  st.bindInt(3, deleted);
  st.bindText(4, coguid);
  st.run();
  bracket.markChanged();
}

}  // namespace

List loadConstList(Store& store, int cotype, const std::optional<std::string>& checked) {
  const Context& context = store.context();
  const auto checkedGuids = splitGuids(checked);
  const std::string unnamed = context.translate("Без названия");
  List entries;
  StoreBracket bracket = store.connectToBase();
  if (!bracket.db()) return entries;
  SqliteStatement rows = bracket.db()->prepare(loadSql(dictionaryOf(store), cotype));
  if (cotype >= 1) rows.bindInt(1, cotype);
  while (rows.step()) {
    const std::string guid = rows.columnText(0).value_or("");
    const auto name = rows.columnText(1);
    const std::int64_t tp = rows.columnInt(2);
    const std::int64_t deleted = rows.columnInt(3);
    entries.push_back(makeEntry(guid, name ? context.translate(*name) : unnamed, tp, deleted,
                                checkedGuids.contains(guid)));
    if (deleted == kSpecialEntry && tp == kIllnessList) store.setBoleznId(guid);
  }
  return entries;
}

const Value* listByIndex(const std::optional<std::string>& guid, const List& entries) {
  if (!guid) return nullptr;
  // Guids and old indexes are ASCII, so bytes count as characters here.
  const std::string index =
      guid->size() <= kLongestOldIndex ? newID2(kOldIndexGroup, leadingInteger(*guid)) : *guid;
  for (const Value& entry : entries)
    if (entry["index"].text() == index) return &entry;
  return nullptr;
}

std::string addConst(Store& store, int cotype, const std::string& coname, int deleted,
                     std::optional<std::string> coguid, StoreBracket* open) {
  const std::string guid = coguid ? std::move(*coguid) : newID();
  if (open) {
    insertConst(store, *open, cotype, coname, deleted, guid);
  } else {
    StoreBracket bracket = store.connectToBase();
    insertConst(store, bracket, cotype, coname, deleted, guid);
  }
  return guid;
}

bool deleteConst(Store& store, const std::string& guid) {
  StoreBracket bracket = store.connectToBase();
  if (!bracket.db()) return false;
  SqliteStatement st = bracket.db()->prepare("update " + dictionaryOf(store) +
                                             " set deleted=1 where coguid=? and deleted=0");
  st.bindText(1, guid);
  if (!st.run()) return false;
  bracket.markChanged();
  return sqlite3_changes(bracket.db()->handle()) > 0;
}

void correctConstList(Store& store, const List& entries) {
  std::set<std::string, std::less<>> known;
  for (const Value& entry : loadConstList(store, 0, std::nullopt))
    known.insert(entry["index"].text());
  StoreBracket bracket = store.connectToBase();
  for (const Value& entry : entries) {
    // An entry without a guid could never be matched again and would be added at each pass.
    const std::string index = entry["index"].text();
    if (index.empty() || !known.insert(index).second) continue;
    addConst(store, static_cast<int>(entry["tp"].intValue()), entry["cap"].text(),
             static_cast<int>(entry["deleted"].intValue()), index, &bracket);
  }
}

void addToList(List& target, const std::string& index, const std::string& name, int tp,
               bool checked) {
  target.push_back(makeEntry(index, name, tp, 0, checked));
}

}  // namespace lad
