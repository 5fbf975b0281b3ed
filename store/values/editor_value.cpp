#include "store/values/editor_value.h"

#include <algorithm>
#include <initializer_list>

#include "core/json_text.h"
#include "core/time_list.h"

namespace lad {

namespace {

constexpr std::int64_t kPairRowKind = 1015;

bool isOneOf(int tp, std::initializer_list<int> kinds) {
  return std::ranges::find(kinds, tp) != kinds.end();
}

std::string sourceAt(const List& rows, std::size_t at) {
  return at < rows.size() ? rows[at]["source"].text() : std::string();
}

void addRow(Map& object, const Value& row) {
  object.set(row["field"].text(), row["source"].text());
}

// The rows at the positions, in their order, as one object; positions past the end are skipped.
Map objectOfRows(const List& rows, std::initializer_list<std::size_t> positions) {
  Map object;
  for (const std::size_t at : positions)
    if (at < rows.size()) addRow(object, rows[at]);
  return object;
}

template <class Keep>
Map objectOfRowsWhere(const List& rows, Keep keep) {
  Map object;
  for (const Value& row : rows)
    if (keep(row)) addRow(object, row);
  return object;
}

List listOf(std::string_view json) {
  Value parsed = jsonToArray(json);
  List* list = parsed.asList();
  return list ? std::move(*list) : List();
}

void sortByTime(List& list) {
  std::ranges::stable_sort(list, [](const Value& a, const Value& b) {
    return timeCompare(a["time"].text(), b["time"].text()) < 0;
  });
}

// Puts the object in place of the entry at pos, or at the end when pos is -1 or nothing is left
// before it. A position past the end counts as the end.
void placeEntry(List& list, Map object, int pos) {
  const auto at = static_cast<std::size_t>(pos);
  if (pos >= 0 && at < list.size()) list.erase(list.begin() + pos);
  if (pos < 0 || list.empty()) {
    list.push_back(Value(std::move(object)));
    return;
  }
  list.insert(list.begin() + static_cast<std::ptrdiff_t>(std::min(at, list.size())),
              Value(std::move(object)));
}

std::string editedList(int tp, std::string_view oldValue, const List& rows, int pos) {
  List list = listOf(oldValue);
  placeEntry(list,
             objectOfRowsWhere(rows, [](const Value& row) { return !row["field"].text().empty(); }),
             pos);
  if (isOneOf(tp, {30, 31})) sortByTime(list);
  return jsonFromObject(Value(std::move(list)));
}

std::string measurementAdded(std::string_view oldValue, const List& rows) {
  List list = listOf(oldValue);
  list.push_back(Value(objectOfRows(rows, {1, 2})));
  sortByTime(list);
  return jsonFromObject(Value(std::move(list)));
}

}  // namespace

std::string jsonFromDic(int tp, std::string_view oldValue, const List& rows, int pos) {
  if (isOneOf(tp, {1, 2, 3, 8, 13})) return sourceAt(rows, 1);
  if (tp == 9)
    return jsonFromObject(Value(objectOfRowsWhere(
        rows, [](const Value& row) { return row["tp"].intValue() == kPairRowKind; })));
  if (tp == 15) return jsonFromObject(Value(objectOfRows(rows, {1, 2})));
  if (tp == 16) return jsonFromObject(Value(objectOfRows(rows, {1, 2, 6, 3})));
  if (isOneOf(tp, {23, 29, 30, 31})) return editedList(tp, oldValue, rows, pos);
  if (isOneOf(tp, {4, 5})) return measurementAdded(oldValue, rows);
  return std::string(oldValue);
}

}  // namespace lad
