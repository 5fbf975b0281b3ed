#include "health/diet_schedule.h"

#include <algorithm>
#include <array>

#include "content/resource.h"
#include "core/context.h"
#include "health/meal_rows.h"
#include "store/records.h"
#include "store/store.h"

namespace lad::health {

namespace {

// The parts of the day (the argument r of dietaEat) of the five meals, by meal.
constexpr std::array<int, 5> kMealParts = {1, 5, 2, 4, 3};
// The diet's words of the five meals, by meal: the second breakfast is shortened.
constexpr std::array<const char*, 5> kDietMealWords = {"завтрак", "вт. завтрак", "обед", "полдник",
                                                       "ужин"};

// The English diet's menu of day n: 10, 20 or 30 by its pattern, 0 after day 21.
int englishDay(int n) {
  if (n == 1 || n == 2 || n == 21) return 10;
  if (n < 1 || n > 21) return 0;
  if (n == 3 || n == 4 || n == 7 || (n >= 9 && n % 2 == 1)) return 20;
  return 30;
}

// The Japanese diet's menu of day n: days 1 to 13 mirror around day 7, day 14 stands alone.
int japaneseDay(int n) {
  if (n < 1 || n > 14) return 0;
  if (n == 14) return 80;
  return 10 * std::min(n, 14 - n);
}

// A row of one part of the day outside the meals: a blank row at `blank` and the part's text at
// `pos`, which may be the same key.
void addPart(const Context& context, Schedule& rows, const std::string& text, const char* word,
             const char* blank, const char* pos) {
  if (text.empty()) return;
  insInData(rows, kPlainRow, "", "", blank);
  insInData(rows, kMealRow, context.translate(word), "25<tr>" + text, pos);
}

}  // namespace

DietInForce dietInForce(Store& store, StoreBracket& bracket, Date day, const std::string& gid) {
  DietInForce diet;
  const std::string last = getLastDateValue(store, bracket, day, "dieta", gid);
  if (!last.empty()) {
    diet.d = static_cast<int>(leadingInteger(last));
    diet.n = store.context().dates().getDays(*store.lastValueDate(), day) + 1;
  }
  const int own = static_cast<int>(leadingInteger(getDateValue(store, bracket, day, "dieta", gid)));
  if (own > 0) diet = {own, 1};
  if (diet.d == kDietEnded) diet.d = 0;
  return diet;
}

bool dietIsLive(int d, int n) {
  switch (d) {
    case 11:
    case 21:
    case 22:
    case 23:
    case 24:
    case 71:
      return true;
    case 31:
      return n <= 21;
    case 41:
    case 51:
      return n <= 14;
    case 61:
      return n < 8;
    default:
      return false;
  }
}

int dietaGroup(int d, int r, int w, int n) {
  const int base = 100 * d + r;
  switch (d) {
    case 21:
    case 22:
    case 23:
    case 24:
    case 51:
      return base + 80;
    case 31:
      return englishDay(n) ? base + englishDay(n) : 0;
    case 41:
      return japaneseDay(n) ? base + japaneseDay(n) : 0;
    case 61:
      return base + 10 * n;
    case 71:
      return base + (n % 7 == 0 ? 70 : 10 * (n % 7));
    default:
      return base + 10 * w;
  }
}

std::string dietaEat(const Context& context, int d, int r, Date date, int n) {
  const int g = dietaGroup(d, r, context.dates().decodeDate(date).weekday, n);
  if (g >= 1) {
    const std::string file = "w-dieta" + std::to_string(d / 10) + "-u";
    return content::extractGroupText(content::fileToString(content::contentFolder(context), file),
                                     g);
  }
  return r >= 1 && r <= 3 ? context.translate("Перейдите в дневник и завершите диету") : "";
}

void addDiet(const Context& context, Schedule& rows, const DietInForce& diet, Date day,
             std::string_view meals) {
  if (!dietIsLive(diet.d, diet.n)) {
    const char* notice =
        diet.d != 0 ? "Вам следует перейти в дневник и завершить диету!" : "Вы не на диете";
    insInData(rows, kPlainRow, "", "0<tr>" + context.translate(notice), "00:02");
    return;
  }
  const auto eat = [&](int r) { return dietaEat(context, diet.d, r, day, diet.n); };
  addPart(context, rows, eat(8), "в течение дня", "06:01", "06:01");
  addPart(context, rows, eat(7), "после сна", "07:01", "07:03");
  for (int meal = 0; meal < 5; ++meal) {
    const std::string text = eat(kMealParts[meal]);
    if (text.empty()) continue;
    const MealRows at(rows, meals, meal);
    at.add(kBlankBefore, kPlainRow, "", "");
    at.add(kMealMinute, kMealRow, context.translate(kDietMealWords[meal]), "25<tr>" + text);
  }
  addPart(context, rows, eat(6), "перед сном", "23:01", "23:03");
}

}  // namespace lad::health
