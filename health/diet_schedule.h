// The running diet of the cycle diary in the day schedule: which diet is in force on a day and
// since when, whether it still runs, and its menu for each part of the day.
#pragma once

#include <string>

#include "core/value.h"
#include "health/day_schedule.h"

namespace lad {
class StoreBracket;
}

namespace lad::health {

// The value that ends a diet.
inline constexpr int kDietEnded = 1000;

struct DietInForce {
  int d = 0;  // the diet's number (11 ... 71), 0 for none
  int n = 0;  // the day of the diet, 1 on the day it was begun
};

// The diet of the latest day before with a `dieta` value, counted from that day, unless the day
// itself begins one. A diet ended by the value 1000, on that day or before, leaves none.
DietInForce dietInForce(Store& store, StoreBracket& bracket, Date day, const std::string& gid);

// Whether the diet still runs on its day n: the English one for 21 days, the Japanese and the
// buckwheat one for 14, the kefir one for 7, the others without end.
bool dietIsLive(int d, int n);

// The group of the diet's menu text for part r of the day (1 breakfast, 2 lunch, 3 dinner,
// 4 afternoon meal, 5 second breakfast, 6 before sleep, 7 after sleep, 8 the whole day), on day n
// of the diet and weekday w (1 Sunday to 7 Saturday); 0 past the diet's last day.
int dietaGroup(int d, int r, int w, int n);

// The menu text of that part of the day from the diet's content file; past the diet's last day
// a call to end it for the three main meals, else "".
std::string dietaEat(const Context& context, int d, int r, Date date, int n);

// The diet's rows of the day, or the notice that there is no running diet.
void addDiet(const Context& context, Schedule& rows, const DietInForce& diet, Date day,
             std::string_view meals);

}  // namespace lad::health
