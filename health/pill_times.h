// The hours at which a medicine is taken: spread evenly over the day, or bound to the meals,
// and the intakes of every course of a day's `pills` value.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/value.h"
#include "store/values/regimen.h"

namespace lad {
class Context;
class DateCodec;
}  // namespace lad

namespace lad::health {

// One intake: when, and the reminder's text.
struct Intake {
  Date dat;
  std::string msg;
};

// How the count of intakes is spread: type 2 ("раз в сутки") over all 24 hours from 00:00,
// type 1 ("раз в день") over 08:00 to 22:00 on quarter hours. Position counts from 1. Any other
// type gives midnight. nullopt when the local time does not exist on that day.
std::optional<Date> generateTime(const DateCodec& dates, Date day, int type, int count, int pos);

// Minutes from the meal at which a medicine with that relation to food is taken.
int mealOffset(const Context& context, std::string_view relation);

// The place of a relation among those before a meal, nearest last (1 to 4), or among those after
// it, nearest first (1 to 4); 0 for any other text.
int relationRank(const Context& context, std::string_view relation);

// The meals (0 breakfast to 4 dinner) that a count of intakes bound to food falls on: breakfast
// always, dinner from 2, lunch from 3, the afternoon meal from 4, the second breakfast at 5.
std::span<const int> mealsFor(std::int64_t count);

// The intake for a meal at the whole hour `base` and the relation's offset; nullopt when the
// hour falls outside the day (a meal at 0 taken an hour before) or the time does not exist.
std::optional<Date> generateTimeEat(const Context& context, Date day, int base,
                                    std::string_view relation);

// The number of intakes a day of a course, at most 24.
std::int64_t intakeCount(const Regimen& regimen);

// Whether a course of that count and relation to food is spread over the day rather than bound
// to the meals: more than five intakes, or "Независимо от еды".
bool spreadsOverDay(const Context& context, std::int64_t count, std::string_view relation);

// The text of a spread intake: the base text with ", " and the relation, unless that is
// "Независимо от еды".
std::string withRelation(const Context& context, const std::string& base,
                         std::string_view relation);

// "Арбидол: 1 штука": the medicine's name and the dose of one intake.
std::string intakeBaseText(const Context& context, const Regimen& regimen, const List& listData);

// The intakes of one course on the day. The meals are the five "HH:mm" times joined by
// "<table>" that getObed gives.
std::vector<Intake> regimenIntakes(const Context& context, Date day, const Regimen& regimen,
                                   const List& listData, std::string_view meals);

// The intakes of every course of a day's value, in order; none for a value that is not JSON.
std::vector<Intake> pillsToTimeArray(const Context& context, Date day, std::string_view value,
                                     const List& listData, std::string_view meals);

// The hours of a course being edited, "HH:mm" joined by "<td>", worked out afresh from its
// count and relation to food as if it had none; nullopt while either of the two is empty.
std::optional<std::string> getCurrentPillTime(const Context& context, Regimen regimen,
                                              const List& listData, std::string_view meals,
                                              Date today);

}  // namespace lad::health
