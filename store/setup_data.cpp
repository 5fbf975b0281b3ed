#include "store/setup_data.h"

#include <system_error>

#include "core/context.h"
#include "core/db_cells.h"
#include "core/ids.h"
#include "store/folders.h"
#include "store/store.h"

namespace lad {

namespace {

constexpr int kPregnancyDays = 280;
constexpr int kConceptionDays = 14;

// A text column kept in the dictionary only when it holds a value.
void setText(Map& setup, std::string_view key, const std::optional<std::string>& text) {
  if (text) setup.set(key, *text);
}

// A "yyyy-MM-dd" column: its text under one key and its date under another.
void setDay(Map& setup, const DateCodec& dates, std::string_view textKey, std::string_view dateKey,
            const std::optional<std::string>& text) {
  if (!text) return;
  setup.set(textKey, *text);
  if (auto date = dates.dateFromStringFormat(*text, "yyyy-MM-dd")) setup.set(dateKey, *date);
}

void overlayPregnancy(const Context& context, const SqliteStatement& row, Map& setup) {
  const DateCodec& dates = context.dates();
  if (!row.isNull(0)) setup.set("metrics", row.columnInt(0));
  if (!row.isNull(1)) setup.set("bodytype", row.columnInt(1));
  if (!row.isNull(2)) setup.set("sex", row.columnInt(2));
  setText(setup, "ves", row.columnText(3));
  setText(setup, "rost", row.columnText(4));
  setText(setup, "name", row.columnText(5));
  // The row's presence shows in "sdat1", also where the column is empty.
  setup.set("sdat1", row.columnText(6).value_or(""));
  setDay(setup, dates, "sdat1", "dat1", row.columnText(6));
  setDay(setup, dates, "sdat2", "dat2", row.columnText(7));
  setDay(setup, dates, "sbirthdate", "birthdate", row.columnText(8));
  setDay(setup, dates, "sbirthdate2", "birthdate2", row.columnText(9));
  if (auto result = row.columnText(10))
    setup.set("birthresult", *result);
  else
    setup.erase("birthresult");
}

void overlayChild(const Context& context, const SqliteStatement& row, Map& setup) {
  const DateCodec& dates = context.dates();
  setText(setup, "name", row.columnText(0));
  setup.set("sbirthdate", row.columnText(1).value_or(""));
  setDay(setup, dates, "sbirthdate", "birthdate", row.columnText(1));
  if (!row.isNull(2)) setup.set("sex", row.columnInt(2));
  setText(setup, "blood", row.columnText(3));
  setText(setup, "ves", row.columnText(4));
  setText(setup, "rost", row.columnText(5));
  setText(setup, "allerg", row.columnText(6));
  if (auto time = row.columnText(7)) {
    setup.set("sbirthtime", *time);
    if (auto moment = dates.dateFromStringFormat(*time, "yyyy-MM-dd HH:mm:ss"))
      setup.set("birthtime", *moment);
  }
  setText(setup, "documents", row.columnText(8));
}

void overlayWoman(const Context& context, const SqliteStatement& row, Map& setup) {
  setDay(setup, context.dates(), "sbirthdate", "birthdate", row.columnText(0));
  if (!row.isNull(1)) setup.set("bodytype", row.columnInt(1));
  setText(setup, "rost", row.columnText(2));
}

struct ProfileQuery {
  const char* sql;
  void (*overlay)(const Context&, const SqliteStatement&, Map&);
};

ProfileQuery profileQuery(int appid) {
  if (isChildEdition(appid))
    return {
        "select chname, sbirthdate, sex, blood, ves, rost, allergen, sbirthtime, documents "
        "from child where childguid=?",
        overlayChild};
  if (isCycleEdition(appid))
    return {"select sbirthdate, body, height from woman where womguid=?", overlayWoman};
  return {
      "select metrics, bodytype, sex, ves, rost, childname, sdat1, sdat2, sbirthdate, "
      "sbirthdate2, birthresult from preg where pregguid=?",
      overlayPregnancy};
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

void writePregnancy(const Context& context, const SqliteConnection& db, const Map& setup,
                    const std::string& gid, bool exists) {
  SqliteStatement st = db.prepare(
      exists ? "update preg set sdat1=?, sdat2=?, sbirthdate=?, sex=?, rost=?, ves=?, metrics=?, "
               "childname=?, bodytype=?, birthresult=?, sbirthdate2=? where pregguid=?"
             : "insert into preg (sdat1,sdat2,sbirthdate,sex,rost,ves,metrics,childname, "
               "bodytype,birthresult,sbirthdate2,pregguid) values (?,?,?,?,?,?,?,?,?,?,?,?)");
  st.bindText(1, dayText(context, setup, "sdat1", "dat1"));
  st.bindText(2, dayText(context, setup, "sdat2", "dat2"));
  st.bindText(3, dayText(context, setup, "sbirthdate", "birthdate"));
  st.bindInt(4, numberOf(setup, "sex"));
  st.bindText(5, textOf(setup, "rost"));
  st.bindText(6, textOf(setup, "ves"));
  st.bindInt(7, 1);
  st.bindText(8, textOf(setup, "name"));
  st.bindInt(9, numberOf(setup, "bodytype"));
  st.bindText(10, textOf(setup, "birthresult"));
  st.bindText(11, dayText(context, setup, "sbirthdate2", "birthdate2"));
  st.bindText(12, gid);
  st.run();
}

void writeChild(const Context& context, const SqliteConnection& db, const Map& setup,
                const std::string& gid, bool exists) {
  SqliteStatement st = db.prepare(
      exists ? "update child set chname=?, sbirthdate=?, sex=?, blood=?, ves=?, rost=?, "
               "sbirthtime=?, allergen=?, documents=? where childguid=?"
             : "insert into child (chname, sbirthdate, sex, blood, ves,rost,sbirthtime,allergen,"
               "documents, childguid) values(?,?,?,?,?,?,?,?,?,?)");
  st.bindText(1, textOf(setup, "name"));
  st.bindText(2, dayText(context, setup, "sbirthdate", "birthdate"));
  st.bindInt(3, numberOf(setup, "sex"));
  st.bindText(4, textOf(setup, "blood"));
  st.bindText(5, textOf(setup, "ves"));
  st.bindText(6, textOf(setup, "rost"));
  st.bindText(7, textOf(setup, "sbirthtime"));
  st.bindText(8, textOf(setup, "allerg"));
  st.bindText(9, textOf(setup, "documents"));
  st.bindText(10, gid);
  st.run();
}

// The editor does not show these keys: they stay as stored.
void keepHiddenKeys(int appid, const Map& stored, Map& setup) {
  const std::initializer_list<const char*> pregnancy = {"birthresult", "sbirthdate2"};
  const std::initializer_list<const char*> child = {"allerg"};
  for (const char* key : isPregnancyEdition(appid) ? pregnancy : child) {
    if (const Value* v = stored.find(key))
      setup.set(key, *v);
    else
      setup.erase(key);
  }
}

void removeProfile(Store& store, const std::string& gid) {
  const Context& context = store.context();
  const bool pregnancy = isPregnancyEdition(context.values().appid);
  {
    StoreBracket bracket = store.connectToBase();
    if (!bracket.db()) return;
    SqliteStatement st =
        bracket.db()->prepare(pregnancy ? "update preg set deleted=1 where pregguid=?"
                                        : "update child set deleted=1 where childguid=?");
    st.bindText(1, gid);
    st.run();
    bracket.markChanged();
  }
  std::error_code error;
  std::filesystem::remove(portraitFile(context, gid), error);
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
      const ProfileQuery query = profileQuery(context.values().appid);
      SqliteStatement row = bracket.db()->prepare(query.sql);
      row.bindText(1, *gid);
      if (row.step()) query.overlay(context, row, setup);
    }
  }
  setup.set("active", true);
  return setup;
}

void saveSetupData(Store& store, SetupRegime regime, Map setup, const std::string& gid) {
  const Context& context = store.context();
  const int appid = context.values().appid;
  if (!isPregnancyEdition(appid) && !isChildEdition(appid)) return;
  const Map stored = loadSetupData(store, gid);
  const bool exists = stored.contains(isPregnancyEdition(appid) ? "sdat1" : "sbirthdate");
  if (regime == kSetupFromEditor) keepHiddenKeys(appid, stored, setup);
  const Value* active = setup.find("active");
  if (active && active->boolValue()) {
    StoreBracket bracket = store.connectToBase();
    if (!bracket.db()) return;
    if (isPregnancyEdition(appid))
      writePregnancy(context, *bracket.db(), setup, gid, exists);
    else
      writeChild(context, *bracket.db(), setup, gid, exists);
    bracket.markChanged();
  } else if (exists) {
    removeProfile(store, gid);
  }
}

}  // namespace lad
