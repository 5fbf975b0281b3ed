#include "store/records.h"

#include <map>

#include "core/context.h"
#include "core/db_cells.h"
#include "store/dictionary.h"
#include "store/keywords.h"
#include "store/pill_courses.h"
#include "store/profiles.h"
#include "store/setup_data.h"
#include "store/store.h"
#include "store/tables.h"

namespace lad {

namespace {

constexpr int kFirstStoredDayType = 2;

// What every row of a day's save shares.
struct DaySave {
  const std::string& gid;
  Date day;
  const List& listData;
  std::map<std::string, std::string> courses;  // course fields' values before the save
};

// Statement text with the edition's diary table and guid column put in for "{data}" and
// "{guid}".
std::string sqlFor(const Store& store, std::string sql) {
  const EditionTables& t = tablesFor(store.context().values().appid);
  for (auto [name, value] : {std::pair{"{data}", t.data}, {"{guid}", t.guid}})
    for (auto at = sql.find(name); at != std::string::npos; at = sql.find(name))
      sql.replace(at, std::string_view(name).size(), value);
  return sql;
}

// Binds guid, day and (when given) keyword from the first parameter on.
void bindDayOf(const Store& store, SqliteStatement& st, const std::string& gid, Date day,
               const std::optional<std::string>& type) {
  const DateCodec& dates = store.context().dates();
  st.bindText(1, gid);
  dateToBase(st, 2, dates.noTime(day), false, dates);
  if (type) st.bindText(3, *type);
}

// The value and day of the first row of a search by guid, day and keyword.
std::optional<std::pair<std::string, std::optional<Date>>> firstValue(
    Store& store, StoreBracket& bracket, const std::string& sql, Date day, const std::string& type,
    const std::string& gid) {
  if (!bracket.db()) return std::nullopt;
  SqliteStatement st = bracket.db()->prepare(sqlFor(store, sql));
  bindDayOf(store, st, gid, day, type);
  if (!st.step()) return std::nullopt;
  return std::pair{st.columnText(0).value_or(""),
                   dateFromBase(st, 1, false, store.context().dates())};
}

std::string lastDateValue(Store& store, StoreBracket& bracket, const std::string& sql, Date day,
                          const std::string& type, const std::string& gid) {
  auto found = firstValue(store, bracket, sql, day, type, gid);
  if (!found) return "";
  if (found->second) store.setLastValueDate(*found->second);
  return found->first;
}

// The values of the day's course fields as they stood before the day is cleared: the courses
// are reconciled against them, and their removal finds the day by them.
std::map<std::string, std::string> coursesBefore(Store& store, StoreBracket& bracket,
                                                 const List& rows, const std::string& gid,
                                                 Date day) {
  std::map<std::string, std::string> old;
  for (const Value& row : rows)
    if (row["tp"].intValue() == kKindPills) {
      const std::string field = row["field"].text();
      old[field] = getDateValue(store, bracket, day, field, gid);
    }
  return old;
}

// One field row of a day: what it writes, by its kind.
bool saveRow(Store& store, StoreBracket& bracket, const Map& row, const DaySave& save) {
  const std::string& gid = save.gid;
  const Date day = save.day;
  const int kind = static_cast<int>(row["tp"].intValue());
  const std::string field = row["field"].text();
  const std::string source = row["source"].text();
  switch (kind) {
    case kKindPhoto:
      return true;
    case kKindBirth:
      setBirthday(store, bracket, day, gid, source);
      return true;
    case kKindDayType:
      if (row["source"].intValue() < kFirstStoredDayType) return true;
      break;
    case kKindPills: {
      const std::string& old = save.courses.at(field);
      insertValue(store, bracket, field, old, day, gid, false, false);
      saveNoteComplex(store, bracket, field, source, day, gid, save.listData, old);
      return true;
    }
  }
  if (source.empty()) return true;
  SqliteStatement st = bracket.db()->prepare(
      sqlFor(store, "insert into {data} ({guid}, sdat, type,value) values(?,?,?,?)"));
  bindDayOf(store, st, gid, day, field);
  st.bindText(4, source);
  return st.run();
}

bool replaceDay(Store& store, StoreBracket& bracket, const List& rows, const List& listData,
                const std::string& gid, Date day) {
  const DaySave save{gid, day, listData, coursesBefore(store, bracket, rows, gid, day)};
  SqliteStatement clear = bracket.db()->prepare(
      sqlFor(store, "delete from {data} where {guid}=? and date(sdat)=date(?)"));
  bindDayOf(store, clear, gid, day, std::nullopt);
  if (!clear.run()) return false;
  for (const Value& row : rows)
    if (row.asMap() && !saveRow(store, bracket, *row.asMap(), save)) return false;
  return true;
}

}  // namespace

void insertValue(Store& store, StoreBracket& bracket, const std::string& type,
                 const std::string& value, Date day, const std::string& gid, bool withDelete,
                 bool justNew) {
  if (value.empty() || !bracket.db()) return;
  if (justNew && firstValue(store, bracket,
                            "select value, sdat from {data} where {guid}=? and "
                            "date(sdat)=date(?) and type=?",
                            day, type, gid))
    return;
  if (withDelete) deleteValue(store, bracket, type, day, gid);
  SqliteStatement st = bracket.db()->prepare(
      sqlFor(store, "insert into {data} ({guid}, sdat, type,value) values(?,?,?,?)"));
  bindDayOf(store, st, gid, day, type);
  st.bindText(4, value);
  st.run();
  bracket.markChanged();
}

void deleteValue(Store& store, StoreBracket& bracket, const std::string& type, Date day,
                 const std::string& gid) {
  if (!bracket.db()) return;
  SqliteStatement st = bracket.db()->prepare(
      sqlFor(store, "delete from {data} where {guid}=? and date(sdat)=date(?) and type=?"));
  bindDayOf(store, st, gid, day, type);
  st.run();
  bracket.markChanged();
}

void noteDeleteValue(Store& store, Date day, const std::optional<std::string>& type,
                     const std::string& gid) {
  StoreBracket bracket = store.connectToBase();
  if (!bracket.db()) return;
  SqliteStatement st = bracket.db()->prepare(
      sqlFor(store, type ? "delete from {data} where {guid}=? and date(sdat)=date(?) and type=?"
                         : "delete from {data} where {guid}=? and date(sdat)=date(?)"));
  bindDayOf(store, st, gid, day, type);
  st.run();
  bracket.markChanged();
}

std::string getDateValue(Store& store, StoreBracket& bracket, Date day, const std::string& type,
                         const std::string& gid) {
  auto found = firstValue(store, bracket,
                          "select value, sdat from {data} where {guid}=? and date(sdat)=date(?) "
                          "and type=?",
                          day, type, gid);
  return found ? found->first : "";
}

std::string getLastDateValue(Store& store, StoreBracket& bracket, Date day, const std::string& type,
                             const std::string& gid) {
  return lastDateValue(store, bracket,
                       "select value, sdat from {data} where {guid}=? and date(sdat)<date(?) and "
                       "type=? order by date(sdat) desc limit 1",
                       day, type, gid);
}

double getLastValue(Store& store, Date day, const std::string& type, const std::string& gid) {
  float value = 0;
  {
    StoreBracket bracket = store.connectToBase();
    value = static_cast<float>(leadingDouble(
        lastDateValue(store, bracket,
                      "select value,sdat from {data} where {guid}=? and date(sdat)<=date(?) and "
                      "type=? order by date(sdat) desc limit 1",
                      day, type, gid)));
  }
  const int appid = store.context().values().appid;
  const bool fallsBack =
      (type == "ves" && !isCycleEdition(appid)) || (type == "rost" && isChildEdition(appid));
  if (value == 0 && fallsBack)
    value = static_cast<float>(loadSetupData(store, gid)[type].doubleValue());
  return value;
}

std::optional<Date> getLastValueDate(const Store& store) {
  return store.lastValueDate();
}

void saveNoteData(Store& store, NoteRegime regime, const List& rows, const List& listData,
                  const std::string& gid, Date day) {
  {
    StoreBracket bracket = store.connectToBase();
    if (!bracket.db()) return;
    const SqliteConnection& db = *bracket.db();
    // One transaction: a failure half-way leaves the day as it was.
    if (!db.execute("begin")) return;
    if (replaceDay(store, bracket, rows, listData, gid, day))
      db.execute("commit");
    else
      db.execute("rollback");
    bracket.markChanged();
  }
  if (regime == kNoteFromCloud) correctConstList(store, listData);
}

}  // namespace lad
