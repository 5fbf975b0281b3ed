#include "health/woman_states.h"

#include "core/context.h"
#include "core/db_cells.h"
#include "store/store.h"

namespace lad::health {

namespace {

// The running numbers count from this day.
int runningDays(const DateCodec& dates, Date day) {
  return dates.getDays(dates.encodeDate(1, 1, 2000), day);
}

// The first row's day and value of a query on one date parameter.
std::optional<std::pair<Date, int>> lastMark(const SqliteConnection& db, const DateCodec& dates,
                                             const char* sql, Date before) {
  SqliteStatement st = db.prepare(sql);
  dateToBase(st, 1, before, false, dates);
  if (!st.step()) return std::nullopt;
  const auto day = dateFromBase(st, 0, false, dates);
  if (!day) return std::nullopt;
  return std::pair{*day, static_cast<int>(st.columnInt(1))};
}

}  // namespace

WomanState lastWomanState(Store& store, Date day) {
  const DateCodec& dates = store.context().dates();
  WomanState state;
  state.dat = day;
  StoreBracket bracket = store.connectToBase();
  if (bracket.db()) {
    if (auto mark = lastMark(*bracket.db(), dates,
                             "select sdat, value from womdata where date(sdat)<date(?) and "
                             "type='daytype' and womid=1 and (value='2' or value='3' or "
                             "value='5' or value='6') order by date(sdat) desc limit 1",
                             day)) {
      state.dat = mark->first;
      state.tp = mark->second;
      state.ok = true;
    }
    if (auto first = lastMark(*bracket.db(), dates,
                              "select sdat, value from womdata where date(sdat)<date(?) and "
                              "type='daytype' and womid=1 and value='2' order by date(sdat) desc "
                              "limit 1",
                              day)) {
      state.lastmesok = true;
      state.lastmesdays = runningDays(dates, first->first);
    }
  }
  state.days = runningDays(dates, state.dat);
  return state;
}

int nextPhaseMark(Store& store, Date day, int closing) {
  StoreBracket bracket = store.connectToBase();
  if (!bracket.db()) return kOrdinaryDay;
  SqliteStatement st = bracket.db()->prepare(
      "select value from womdata where date(sdat)>date(?) and type='daytype' and womid=1 and "
      "(value='2' or value='5' or value=?) order by date(sdat) limit 1");
  dateToBase(st, 1, day, false, store.context().dates());
  st.bindText(2, std::to_string(closing));
  return st.step() ? static_cast<int>(st.columnInt(0)) : kOrdinaryDay;
}

std::vector<WomanState> womanStates(Store& store, Date from, Date to) {
  const DateCodec& dates = store.context().dates();
  std::vector<WomanState> states;
  StoreBracket bracket = store.connectToBase();
  if (!bracket.db()) return states;
  SqliteStatement rows = bracket.db()->prepare(
      "select  sdat, max(case when type='daytype' then cast(value as integer) else 1 end) value, "
      "max(case when type='dieta' then cast(value as integer) else 0 end) dieta, max(case when "
      "type='sex' then 1 else 0 end) sex from womdata where date(sdat)>=date(?) and "
      "date(sdat)<=date(?) and womid=1 group by sdat order by date(sdat)");
  dateToBase(rows, 1, from, false, dates);
  dateToBase(rows, 2, to, false, dates);
  while (rows.step()) {
    const auto day = dateFromBase(rows, 0, false, dates);
    if (!day) continue;  // a row without a readable day belongs to no day
    WomanState state;
    state.dat = *day;
    state.tp = static_cast<int>(rows.columnInt(1));
    state.ok = true;
    state.days = runningDays(dates, *day);
    state.dieta = static_cast<int>(rows.columnInt(2));
    state.sex = rows.columnInt(3) != 0;
    states.push_back(state);
  }
  return states;
}

std::vector<WomanState> prepareWomanData(Store& store, int year) {
  const DateCodec& dates = store.context().dates();
  const Date first = dates.encodeDate(1, 1, year);
  const WomanState opening = lastWomanState(store, first);
  std::vector<WomanState> states = womanStates(store, first, dates.encodeDate(1, 1, year + 1));
  if (opening.ok) states.insert(states.begin(), opening);
  return states;
}

}  // namespace lad::health
