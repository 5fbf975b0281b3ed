// The child's feedings: one row per feeding of a day, each a JSON value of its kind (the breast
// with minutes at each side, or a food with its amount), read out as lines of the day's list
// and summed up per kind against the last earlier day that had feedings.
#pragma once

#include <string>
#include <vector>

#include "core/dates.h"
#include "core/value.h"

namespace lad {
class Context;
class Store;
}  // namespace lad

namespace lad::health {

// The kinds of feeding ("tp" of the value and "kotype" of the row).
enum FeedingKind {
  kFeedBreast = 1,
  kFeedFormula = 2,
  kFeedKefir = 3,
  kFeedCottageCheese = 4,
  kFeedPorridge = 5,
  kFeedPuree = 6,
  kFeedOther = 7,
};

// Replaces the feedings of the day: maps with "kodates" (beginning with the day as
// "yyyy-MM-dd"), "kotype", "kovalue" and "kosum". A row that cannot be written is skipped.
void saveKormForDate(Store& store, const List& feedings, Date day, const std::string& gid);
// The feedings of the day, in the order they were written.
List loadKormForDate(Store& store, Date day, const std::string& gid);
// The feedings of the latest day before this one that had any; empty when there was none.
List loadLastKormBefore(Store& store, Date day, const std::string& gid);

// A feeding's value as text: the minutes at each breast, each side on its own line (the right
// one always after a line break), or the amount of a food with the food's name.
std::string kormToString(const Context& context, std::string_view kovalue, const List& listData);
// The line of the day's list: kefir and cottage cheese say what they are.
std::string kormLine(const Context& context, std::string_view kovalue, const List& listData);

// The dictionary list of the foods of a kind; 0 for the kinds named by themselves.
int foodList(int kind);
// The kind's name, as the totals and the feeding form call it.
std::string feedingCaption(const Context& context, int kind);

// The totals of a day, one line per kind fed today or on the last comparable day, in the order
// of the kinds: the sum and its difference from that day, "перестали" for a kind fed then and
// no longer, and no sum for other foods.
std::vector<std::string> kormTotals(const Context& context, const List& today, const List& lastDay);

}  // namespace lad::health
