#include "charts/preg_graph.h"

namespace lad::charts {

namespace {

using Kind = PregListRow::Kind;

struct WeekSpan {
  int from = 1, to = 0;  // empty unless given
  bool holds(int week) const { return week >= from && week <= to; }
};

struct TypeWeeks {
  WeekSpan first, second;
};

constexpr WeekSpan kNone;

// The weeks of types 1 to 12.
constexpr TypeWeeks kTypeWeeks[] = {
    {{5, 12}, {33, 40}}, {{5, 22}, {26, 40}}, {{5, 22}, kNone},  {{10, 22}, kNone},
    {{12, 40}, kNone},   {{19, 40}, kNone},   {{21, 40}, kNone}, {{26, 35}, kNone},
    {{29, 36}, kNone},   {{33, 40}, kNone},   {{20, 40}, kNone}, {{34, 40}, kNone},
};

constexpr PregListRow kRows[] = {
    {Kind::Header, "Изменения", 0, {}},
    {Kind::Week, "Изменился вкус", 5, {}},
    {Kind::Week, "Потемнели ареолы на груди", 7, {}},
    {Kind::Week, "Появились небольшие узелки на ареолах (Узелки Монтгомери)", 10, {}},
    {Kind::Type, "Могут появиться отеки", 11, {0, 0.5, 0, 1}},
    {Kind::Type, "Выделяется молозиво", 12, {0, 0.7, 0, 1}},
    {Kind::Header, "Недомогания", 0, {}},
    {Kind::Type, "Токсикоз", 1, {0.9, 0, 0, 1}},
    {Kind::Type, "Сонливость", 2, {1, 0.5, 0, 1}},
    {Kind::Type, "Быстрая смена настроения", 3, {0.9, 0.9, 0, 1}},
    {Kind::Type, "Проблемы с кишечником", 4, {0, 0.9, 0, 1}},
    {Kind::Type, "Проблемы с пищеварением", 5, {0, 0.8, 0.5, 1}},
    {Kind::Type, "Могут появиться ложные схватки", 6, {0, 0.8, 0.8, 1}},
    {Kind::Type, "Может появиться одышка", 7, {0, 0.5, 0.9, 1}},
    {Kind::Type, "Нервозность", 8, {0, 0, 0.9, 1}},
    {Kind::Type, "Головная боль", 9, {0.9, 0, 0.9, 1}},
    {Kind::Type, "Боли в спине", 10, {0.5, 0, 0.9, 1}},
};

}  // namespace

bool isWomanTypeInWeek(int week, int type) {
  if (type < 1 || type > static_cast<int>(std::size(kTypeWeeks))) return false;
  const TypeWeeks& weeks = kTypeWeeks[type - 1];
  return weeks.first.holds(week) || weeks.second.holds(week);
}

std::span<const PregListRow> pregListRows() {
  return kRows;
}

bool rowHolds(const PregListRow& row, int week) {
  switch (row.kind) {
    case Kind::Week:
      return row.test == week;
    case Kind::Type:
      return isWomanTypeInWeek(week, row.test);
    case Kind::Header:
      break;
  }
  return false;
}

}  // namespace lad::charts
