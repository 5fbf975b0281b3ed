#include "health/child_teeth.h"

#include "core/context.h"
#include "core/db_cells.h"
#include "core/text_parts.h"
#include "store/store.h"

namespace lad::health {

namespace {

constexpr std::string_view kSeparator = "<tr>";

void append(std::string& joined, std::int64_t code) {
  if (!joined.empty()) joined += kSeparator;
  joined += std::to_string(code);
}

}  // namespace

TeethState applyTeeth(TeethState state, std::string_view codes) {
  if (codes.empty()) return state;
  for (std::string_view part : splitOn(codes, kSeparator)) {
    const std::int64_t code = leadingInteger(part);
    const bool out = code >= kToothOut;
    const std::int64_t tooth = out ? code - kToothOut : code;
    if (tooth < 1 || tooth > kMilkTeeth) continue;
    state.set(static_cast<std::size_t>(tooth - 1), !out);
  }
  return state;
}

std::string teethText(const TeethState& state) {
  std::string joined;
  for (int n = 1; n <= kMilkTeeth; ++n)
    if (state.test(static_cast<std::size_t>(n - 1))) append(joined, n);
  return joined;
}

std::string toothChanges(const TeethState& before, const TeethState& after) {
  std::string joined;
  for (int n = 1; n <= kMilkTeeth; ++n) {
    const auto at = static_cast<std::size_t>(n - 1);
    if (before.test(at) != after.test(at)) append(joined, after.test(at) ? n : kToothOut + n);
  }
  return joined;
}

std::string toothForDay(Store& store, Date day, const std::string& gid) {
  TeethState state;
  StoreBracket bracket = store.connectToBase();
  if (!bracket.db()) return "";
  SqliteStatement rows = bracket.db()->prepare(
      "select value from childdata where type='tooth' and childguid=? and date(sdat)<date(?) "
      "order by date(sdat)");
  rows.bindText(1, gid);
  dateToBase(rows, 2, day, false, store.context().dates());
  while (rows.step()) state = applyTeeth(state, rows.columnText(0).value_or(""));
  return teethText(state);
}

}  // namespace lad::health
