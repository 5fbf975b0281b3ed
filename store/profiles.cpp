#include "store/profiles.h"

#include "core/context.h"
#include "core/db_cells.h"
#include "store/store.h"

namespace lad {

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

}  // namespace lad
