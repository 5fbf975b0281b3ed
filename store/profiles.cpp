#include "store/profiles.h"

#include "core/context.h"
#include "core/db_cells.h"
#include "store/store.h"
#include "store/tables.h"

namespace lad {

namespace {

constexpr std::size_t kShortestName = 2;

// Number of characters of a UTF-8 text.
std::size_t characters(const std::string& text) {
  std::size_t n = 0;
  for (unsigned char c : text) n += (c & 0xC0) != 0x80;
  return n;
}

void setDate(Map& m, std::string_view key, const std::optional<Date>& date) {
  m.set(key, date ? Value(*date) : Value());
}

Map pregnancyEntry(const SqliteStatement& row, const DateCodec& dates) {
  Map m;
  const std::string guid = row.columnText(0).value_or("");
  m.set("guid", guid);
  m.set("pregguid", guid);
  m.set("childname", row.columnText(1).value_or(""));
  setDate(m, "sdat1", dateFromBase(row, 2, false, dates));
  setDate(m, "sbirthdate", dateFromBase(row, 3, false, dates));
  m.set("sex", row.columnInt(4));
  setDate(m, "sbirthdate2", dateFromBase(row, 5, false, dates));
  m.set("birthresult", row.isNull(6) ? Value() : Value(*row.columnText(6)));
  return m;
}

Map childEntry(const SqliteStatement& row, const DateCodec& dates) {
  Map m;
  const std::string guid = row.columnText(0).value_or("");
  m.set("guid", guid);
  m.set("childguid", guid);
  m.set("childname", row.columnText(1).value_or(""));
  setDate(m, "sbirthdate", dateFromBase(row, 2, false, dates));
  m.set("sex", row.columnInt(3));
  return m;
}

}  // namespace

List loadProfils(Store& store) {
  const DateCodec& dates = store.context().dates();
  const bool child = isChildEdition(store.context().values().appid);
  List profiles;
  StoreBracket bracket = store.connectToBase();
  if (!bracket.db()) return profiles;
  SqliteStatement rows = bracket.db()->prepare(
      child ? "select childguid, chname, sbirthdate, sex from child where ifnull(deleted,0)<>1 "
              "order by date(sbirthdate)"
            : "select pregguid, childname, sdat1, sbirthdate, sex, sbirthdate2, birthresult from "
              "preg where ifnull(deleted,0)<>1 order by date(sdat1)");
  while (rows.step())
    profiles.push_back(child ? childEntry(rows, dates) : pregnancyEntry(rows, dates));
  return profiles;
}

List profileList(Store& store) {
  List children;
  if (!isChildEdition(store.context().values().appid)) return children;
  const DateCodec& dates = store.context().dates();
  StoreBracket bracket = store.connectToBase();
  if (!bracket.db()) return children;
  SqliteStatement rows = bracket.db()->prepare(
      "select sbirthdate, chid, chname from child where ifnull(deleted,0)<>1 "
      "order by date(sbirthdate)");
  while (rows.step()) {
    Map m;
    setDate(m, "sbirthdate", dateFromBase(rows, 0, false, dates));
    m.set("chid", rows.columnInt(1));
    m.set("chname", rows.columnText(2).value_or(""));
    children.push_back(Value(std::move(m)));
  }
  return children;
}

Map childNames(Store& store) {
  Map names;
  const std::string unnamed = store.context().translate("Без имени");
  StoreBracket bracket = store.connectToBase();
  if (!bracket.db()) return names;
  SqliteStatement rows = bracket.db()->prepare("select childguid, chname from child");
  while (rows.step()) {
    const std::string name = rows.columnText(1).value_or("");
    names.set(rows.columnText(0).value_or(""), characters(name) < kShortestName ? unnamed : name);
  }
  return names;
}

std::optional<std::string> getActivePregnancy(Store& store, Date day) {
  const DateCodec& dates = store.context().dates();
  StoreBracket bracket = store.connectToBase();
  if (!bracket.db()) return std::nullopt;
  SqliteStatement rows = bracket.db()->prepare(
      "select pregguid, sdat1 from preg where ifnull(deleted,0)<>1 order by date(sdat1)");
  std::optional<std::string> active;
  while (rows.step()) {
    const auto guid = stringFromBase(rows, 0);
    if (!active) active = guid.value_or("");
    const auto start = dateFromBase(rows, 1, false, dates);
    if (start && dates.getDays(*start, day) >= 1) active = guid.value_or("");
  }
  return active;
}

void setBirthday(const Store& store, StoreBracket& bracket, Date day, const std::string& gid,
                 const std::string& result) {
  if (!bracket.db()) return;
  const DateCodec& dates = store.context().dates();
  SqliteStatement st = bracket.db()->prepare(
      result.empty() ? "update preg set sbirthdate2=null, birthresult=null where sbirthdate2=? "
                       "and pregguid=?"
                     : "update preg set sbirthdate2=?, birthresult=? where pregguid=?");
  int index = 1;
  dateToBase(st, index++, dates.noTime(day), false, dates);
  if (!result.empty()) st.bindText(index++, result);
  st.bindText(index, gid);
  st.run();
  bracket.markChanged();
}

std::string getObed(Store& store) {
  const std::string table = tablesFor(store.context().values().appid).profile;
  StoreBracket bracket = store.connectToBase();
  if (bracket.db()) {
    SqliteStatement row =
        bracket.db()->prepare("select obed from " + table + " where obed is not null");
    if (row.step()) return row.columnText(0).value_or("");
  }
  return "09:00<table>11:00<table>14:00<table>16:00<table>20:00";
}

void setObed(Store& store, const std::string& meals) {
  const std::string table = tablesFor(store.context().values().appid).profile;
  StoreBracket bracket = store.connectToBase();
  if (!bracket.db()) return;
  SqliteStatement st = bracket.db()->prepare("update " + table + " set obed=?");
  st.bindText(1, meals);
  st.run();
  bracket.markChanged();
}

}  // namespace lad
