#include "health/contraction_store.h"

#include "core/context.h"
#include "core/db_cells.h"

namespace lad::health {

std::vector<Contraction> loadContractions(Store& store, const std::string& pregguid) {
  std::vector<Contraction> out;
  StoreBracket bracket = store.connectToBase();
  if (!bracket.db()) return out;
  const DateCodec& dates = store.context().dates();
  // schid keeps the insertion order within a day explicit.
  SqliteStatement rows = bracket.db()->prepare(
      "select schid,startdates,enddates, length from pregschvatki where pregguid=? "
      "order by date(startdates), schid");
  rows.bindText(1, pregguid);
  while (rows.step()) {
    const auto start = dateFromBase(rows, 1, true, dates);
    const auto end = dateFromBase(rows, 2, true, dates);
    if (!start || !end) continue;  // a row without its times cannot be placed
    out.push_back({rows.columnInt(0), *start, *end, rows.columnInt(3), 0});
  }
  return out;
}

std::int64_t addContraction(Store& store, const Contraction& c, const std::string& pregguid) {
  StoreBracket bracket = store.connectToBase();
  if (!bracket.db()) return -1;
  const DateCodec& dates = store.context().dates();
  SqliteStatement insert = bracket.db()->prepare(
      "insert into pregschvatki (startdates,enddates, length, pregguid) values (?,?,?,?)");
  dateToBase(insert, 1, c.start, true, dates);
  dateToBase(insert, 2, c.end, true, dates);
  insert.bindInt(3, c.len);
  insert.bindText(4, pregguid);
  if (!insert.run()) return -1;
  bracket.markChanged();
  return bracket.db()->lastInsertRowId();
}

bool deleteContraction(Store& store, std::int64_t schid) {
  StoreBracket bracket = store.connectToBase();
  if (!bracket.db()) return false;
  SqliteStatement del = bracket.db()->prepare("delete from pregschvatki where schid=?");
  del.bindInt(1, schid);
  if (!del.run()) return false;
  bracket.markChanged();
  return true;
}

}  // namespace lad::health
