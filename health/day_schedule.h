// One diary day as a timetable: reminders, medicine intakes around the five meals, the meals of
// a running diet and the doctor's due items, each row placed by a time key "HH:mm" whose hours
// may pass 23 so that the doctor's block comes last.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/value.h"

namespace lad {
class Context;
class Store;
}  // namespace lad

namespace lad::health {

// The kinds of rows.
enum ScheduleRowType { kPlainRow = 1, kMealRow = 2, kRelationRow = 3 };

struct ScheduleRow {
  int tp = kPlainRow;
  std::string right;  // at the right margin: a time, a meal's word or a relation to food
  std::string pos;    // the time key that places the row
  std::string value;  // entries "number<tr>text" joined by "<end>"; may be empty

  bool operator==(const ScheduleRow&) const = default;
};

using Schedule = std::vector<ScheduleRow>;

// Adds the value to the row of the same tp, right and pos, after an "<end>" when both are not
// empty; adds a new row when there is none.
void insInData(Schedule& rows, int tp, const std::string& right, const std::string& value,
               const std::string& pos);

// The tie-break of two rows on one key: relations before a meal from the earliest to the
// nearest, those after it from the nearest to the latest; any other text ranks 0.
int compareRight(const Context& context, std::string_view right1, std::string_view right2);

// Orders the rows by their keys as numbers of minutes, then by compareRight; equal rows keep
// their order.
void sortSchedule(const Context& context, Schedule& rows);

// The key of meal `priem` (1 breakfast to 5 dinner) of the "<table>"-joined meal times, plus
// `min` minutes, wrapping over midnight; nullopt when that meal time is not "HH:mm".
std::optional<std::string> gt(std::string_view meals, int priem, int min);

// The key of position `pos` of `count` intakes spread evenly: kind 2 over 24 hours (divided by
// count + 1), kind 1 from 08:00 over 14 hours; both on quarter hours. Other kinds: "00:00".
std::string generateTime(int kind, int count, int pos);

// The rows of the day for the profile, sorted. The diet is shown in the cycle edition only, the
// doctor's block in the pregnancy editions only.
Schedule prepare(Store& store, Date day, const std::string& gid, const List& listData);

}  // namespace lad::health
