// The child's milk teeth: which are there on a day, from the changes recorded on the days
// before, and the changes that a new selection of teeth makes of that state.
#pragma once

#include <bitset>
#include <string>

#include "core/dates.h"

namespace lad {
class Store;
}  // namespace lad

namespace lad::health {

inline constexpr int kMilkTeeth = 20;
// A recorded code: a tooth number came through, this plus the number fell out.
inline constexpr int kToothOut = 100;

// Teeth present, tooth n at place n - 1.
using TeethState = std::bitset<kMilkTeeth>;

// The state after the codes, joined by "<tr>", in their order; codes of no milk tooth are
// ignored.
TeethState applyTeeth(TeethState state, std::string_view codes);
// The numbers of the teeth present, joined by "<tr>".
std::string teethText(const TeethState& state);
// The codes that take `before` to `after`: a tooth that came through by its number, one that
// fell out by 100 plus its number, in the order of the teeth, joined by "<tr>".
std::string toothChanges(const TeethState& before, const TeethState& after);

// The teeth present before the day (its own record does not count), from the records of
// earlier days in date order, joined by "<tr>".
std::string toothForDay(Store& store, Date day, const std::string& gid);

}  // namespace lad::health
