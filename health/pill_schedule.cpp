#include "health/pill_schedule.h"

#include "core/context.h"
#include "core/json_text.h"
#include "health/meal_rows.h"
#include "health/pill_times.h"
#include "store/values/pill_reading.h"
#include "store/values/reading_forms.h"
#include "store/values/regimen.h"

namespace lad::health {

namespace {

// The offsets of "Во время еды" and of the nearest relation after a meal.
constexpr int kDuringMeal = 5;
constexpr int kAfterMeal = 10;

void addSpread(const Context& context, Schedule& rows, Date day, const Regimen& regimen,
               const std::string& entry, const List& listData, std::string_view meals) {
  for (const Intake& intake : regimenIntakes(context, day, regimen, listData, meals)) {
    const std::string time = context.dates().dateToString(intake.dat, "HH:mm");
    insInData(rows, kPlainRow, time, entry, time);
  }
}

void addAroundMeals(const Context& context, Schedule& rows, std::int64_t count,
                    const std::string& relation, const std::string& entry, std::string_view meals) {
  const int offset = mealOffset(context, relation);
  for (int meal : mealsFor(count)) {
    const MealRows at(rows, meals, meal);
    at.add(kBlankBefore, kPlainRow, "", "");
    if (offset < 0) at.add(kBefore, kRelationRow, relation, entry);
    at.add(kMealMinute, kMealRow, context.translate(kMealWords[meal]),
           offset == kDuringMeal ? entry : "");
    if (offset >= kAfterMeal) at.add(kAfter, kRelationRow, relation, entry);
    at.add(kBlankAfter, kPlainRow, "", "");
  }
}

}  // namespace

void addMedicines(const Context& context, Schedule& rows, Date day, const std::string& pills,
                  const List& listData, std::string_view meals) {
  const Value tree = jsonIs(pills) ? jsonToArray(pills) : Value();
  if (!tree.asList()) {
    insInData(rows, kPlainRow, "",
              "0<tr>" + context.translate("Приема лекарств и процедур в этом дне нет"), "00:01");
    return;
  }
  for (const Value& object : *tree.asList()) {
    const Regimen regimen = Regimen::fromValue(object);
    const std::int64_t count = intakeCount(regimen);
    const std::string relation = checkStringToRead(regimen.pilleat, listData);
    const std::string base = intakeBaseText(context, regimen, listData);
    const std::string dayText = courseDayText(context, regimen.pillsdate, regimen.pilllength, day);
    if (spreadsOverDay(context, count, relation))
      addSpread(context, rows, day, regimen,
                "23<tr>" + withRelation(context, base, relation) + " " + dayText, listData, meals);
    else
      addAroundMeals(context, rows, count, relation, "23<tr>" + base + " " + dayText, meals);
  }
}

}  // namespace lad::health
