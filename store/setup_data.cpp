#include "store/setup_data.h"

#include <span>

#include "core/context.h"
#include "core/db_cells.h"
#include "core/ids.h"
#include "store/portrait.h"
#include "store/store.h"
#include "store/tables.h"

namespace lad {

namespace {

constexpr int kPregnancyDays = 280;
constexpr int kConceptionDays = 14;

// How a column of the profile row travels in the setup dictionary.
enum class Carry {
  Number,     // an integer under the key, absent when null; a missing key is written as 0
  AlwaysOne,  // read like Number, always written as 1
  Text,       // its text under the key, absent when null; a missing key is written as null
  Day,        // "yyyy-MM-dd" text under the key and its date under dateKey; written from the
              // text, else from the date
  Moment,     // text under the key and, when it reads as "yyyy-MM-dd HH:mm:ss", the moment under
              // dateKey; written from the text
};

struct ProfileColumn {
  const char* column;
  const char* key;
  Carry carry;
  const char* dateKey = nullptr;
  // The profile editor does not show the key: a save from it keeps what is stored.
  bool hiddenInEditor = false;
};

// One edition's profile row: its columns, and the key that is there exactly when the row exists
// (null for the woman, whose row is only read).
struct ProfileTable {
  std::span<const ProfileColumn> columns;
  const char* presenceKey;
};

constexpr ProfileColumn kPregnancyColumns[] = {
    {"metrics", "metrics", Carry::AlwaysOne},
    {"bodytype", "bodytype", Carry::Number},
    {"sex", "sex", Carry::Number},
    {"ves", "ves", Carry::Text},
    {"rost", "rost", Carry::Text},
    {"childname", "name", Carry::Text},
    {"sdat1", "sdat1", Carry::Day, "dat1"},
    {"sdat2", "sdat2", Carry::Day, "dat2"},
    {"sbirthdate", "sbirthdate", Carry::Day, "birthdate"},
    {"sbirthdate2", "sbirthdate2", Carry::Day, "birthdate2", true},
    {"birthresult", "birthresult", Carry::Text, nullptr, true},
};

constexpr ProfileColumn kChildColumns[] = {
    {"chname", "name", Carry::Text},
    {"sbirthdate", "sbirthdate", Carry::Day, "birthdate"},
    {"sex", "sex", Carry::Number},
    {"blood", "blood", Carry::Text},
    {"ves", "ves", Carry::Text},
    {"rost", "rost", Carry::Text},
    {"allergen", "allerg", Carry::Text, nullptr, true},
    {"sbirthtime", "sbirthtime", Carry::Moment, "birthtime"},
    {"documents", "documents", Carry::Text},
};

constexpr ProfileColumn kWomanColumns[] = {
    {"sbirthdate", "sbirthdate", Carry::Day, "birthdate"},
    {"body", "bodytype", Carry::Number},
    {"height", "rost", Carry::Text},
};

ProfileTable profileTable(int appid) {
  if (isChildEdition(appid)) return {kChildColumns, "sbirthdate"};
  if (isCycleEdition(appid)) return {kWomanColumns, nullptr};
  return {kPregnancyColumns, "sdat1"};
}

// The columns joined by ", ", each followed by suffix.
std::string columnList(const ProfileTable& table, std::string_view suffix) {
  std::string list;
  for (const ProfileColumn& c : table.columns) {
    if (!list.empty()) list += ", ";
    list += c.column;
    list += suffix;
  }
  return list;
}

void overlay(const Context& context, const ProfileTable& table, const SqliteStatement& row,
             Map& setup) {
  const DateCodec& dates = context.dates();
  int index = 0;
  for (const ProfileColumn& c : table.columns) {
    const int i = index++;
    if (row.isNull(i)) continue;
    if (c.carry == Carry::Number || c.carry == Carry::AlwaysOne) {
      setup.set(c.key, row.columnInt(i));
      continue;
    }
    const std::string text = row.columnText(i).value_or("");
    setup.set(c.key, text);
    const char* format = c.carry == Carry::Day      ? "yyyy-MM-dd"
                         : c.carry == Carry::Moment ? "yyyy-MM-dd HH:mm:ss"
                                                    : nullptr;
    if (format)
      if (auto date = dates.dateFromStringFormat(text, format)) setup.set(c.dateKey, *date);
  }
  // The row's presence shows also where that column is empty.
  if (table.presenceKey && !setup.contains(table.presenceKey)) setup.set(table.presenceKey, "");
}

// The text of a day column: the text the editor gave, else the date formatted, else null.
std::optional<std::string> dayText(const Context& context, const Map& setup,
                                   std::string_view textKey, std::string_view dateKey) {
  if (const Value* text = setup.find(textKey); text && !text->isNull()) return text->text();
  if (const Value* date = setup.find(dateKey); date && date->asDate())
    return context.dates().dateToString(*date->asDate(), "yyyy-MM-dd");
  return std::nullopt;
}

std::optional<std::string> textOf(const Map& setup, std::string_view key) {
  const Value* v = setup.find(key);
  if (!v || v->isNull()) return std::nullopt;
  return v->text();
}

std::int64_t numberOf(const Map& setup, std::string_view key) {
  const Value* v = setup.find(key);
  return v ? v->intValue() : 0;
}

// An update of the profile's row, or an insert of it; both bind the columns in table order.
void writeProfile(const Context& context, const SqliteConnection& db, const ProfileTable& table,
                  const Map& setup, const std::string& gid, bool exists) {
  const EditionTables& names = tablesFor(context.values().appid);
  std::string marks;
  for (std::size_t i = 0; i <= table.columns.size(); ++i) marks += i ? ", ?" : "?";
  SqliteStatement st = db.prepare(
      exists ? "update " + std::string(names.profile) + " set " + columnList(table, "=?") +
                   " where " + names.guid + "=?"
             : "insert into " + std::string(names.profile) + " (" + columnList(table, "") + ", " +
                   names.guid + ") values (" + marks + ")");
  int index = 1;
  for (const ProfileColumn& c : table.columns) {
    switch (c.carry) {
      case Carry::Number:
        st.bindInt(index++, numberOf(setup, c.key));
        break;
      case Carry::AlwaysOne:
        st.bindInt(index++, 1);
        break;
      case Carry::Day:
        st.bindText(index++, dayText(context, setup, c.key, c.dateKey));
        break;
      case Carry::Text:
      case Carry::Moment:
        st.bindText(index++, textOf(setup, c.key));
        break;
    }
  }
  st.bindText(index, gid);
  st.run();
}

// The editor does not show these keys: they stay as stored.
void keepHiddenKeys(const ProfileTable& table, const Map& stored, Map& setup) {
  for (const ProfileColumn& c : table.columns) {
    if (!c.hiddenInEditor) continue;
    if (const Value* v = stored.find(c.key))
      setup.set(c.key, *v);
    else
      setup.erase(c.key);
  }
}

void removeProfile(Store& store, const std::string& gid) {
  const Context& context = store.context();
  const EditionTables& names = tablesFor(context.values().appid);
  {
    StoreBracket bracket = store.connectToBase();
    if (!bracket.db()) return;
    SqliteStatement st = bracket.db()->prepare("update " + std::string(names.profile) +
                                               " set deleted=1 where " + names.guid + "=?");
    st.bindText(1, gid);
    st.run();
    bracket.markChanged();
  }
  removePortrait(context, gid);
}

}  // namespace

void initSetupStruct(const Context& context, Map& setup) {
  const int appid = context.values().appid;
  const DateCodec& dates = context.dates();
  const Date today = dates.noTime(context.clock().now());
  if (isPregnancyEdition(appid)) {
    setup.set("bodytype", 2);
    setup.set("idx3", 1);
    setup.set("sex", 0);
    setup.set("ves", "0");
    setup.set("rost", "0");
    setup.set("name", "");
    setup.set("dat1", today);
    setup.set("dat2", dates.addDays(today, kConceptionDays));
    setup.set("birthdate", dates.addDays(today, kPregnancyDays));
  } else if (isChildEdition(appid)) {
    setup.set("birthdate", today);
    setup.set("sex", 0);
    setup.set("ves", "0");
    setup.set("rost", "0");
    setup.set("name", "");
    setup.set("allerg", "");
    setup.set("blood", newID2(2, 31));
  }
}

Map loadSetupData(Store& store, const std::optional<std::string>& gid) {
  const Context& context = store.context();
  Map setup;
  initSetupStruct(context, setup);
  if (!gid) return setup;
  {
    StoreBracket bracket = store.connectToBase();
    if (bracket.db()) {
      const int appid = context.values().appid;
      const ProfileTable table = profileTable(appid);
      const EditionTables& names = tablesFor(appid);
      SqliteStatement row = bracket.db()->prepare("select " + columnList(table, "") + " from " +
                                                  names.profile + " where " + names.guid + "=?");
      row.bindText(1, *gid);
      if (row.step()) overlay(context, table, row, setup);
    }
  }
  setup.set("active", true);
  return setup;
}

void saveSetupData(Store& store, SetupRegime regime, Map setup, const std::string& gid) {
  const Context& context = store.context();
  const int appid = context.values().appid;
  if (!isPregnancyEdition(appid) && !isChildEdition(appid)) return;
  const ProfileTable table = profileTable(appid);
  const Map stored = loadSetupData(store, gid);
  const bool exists = stored.contains(table.presenceKey);
  if (regime == kSetupFromEditor) keepHiddenKeys(table, stored, setup);
  const Value* active = setup.find("active");
  if (active && active->boolValue()) {
    StoreBracket bracket = store.connectToBase();
    if (!bracket.db()) return;
    writeProfile(context, *bracket.db(), table, setup, gid, exists);
    bracket.markChanged();
  } else if (exists) {
    removeProfile(store, gid);
  }
}

void saveWomanSetup(Store& store, const Map& setup, const std::string& gid) {
  if (!isCycleEdition(store.context().values().appid)) return;
  StoreBracket bracket = store.connectToBase();
  if (!bracket.db()) return;
  writeProfile(store.context(), *bracket.db(), profileTable(store.context().values().appid), setup,
               gid, true);
  bracket.markChanged();
}

}  // namespace lad
