// The cycle marks of the woman's diary: the state in force before a day, and the marks, diets
// and sex marks of every day of a range or of a calendar year. The marks are the woman's own;
// nothing here guesses a day she has not marked.
#pragma once

#include <vector>

#include "core/value.h"

namespace lad {
class Store;
}

namespace lad::health {

// The values of a day's "daytype" record.
enum WomanDayType {
  kOrdinaryDay = 1,
  kPeriodFirstDay = 2,
  kPeriodLastDay = 3,
  kOvulation = 4,
  kPregnancyFirstDay = 5,
  kPregnancyLastDay = 6,
};

struct WomanState {
  Date dat{};
  int tp = kOrdinaryDay;
  bool ok = false;  // found in the diary
  int days = 0;     // the day's running number: days from 1 January 2000
  int dieta = 0;    // the day's diet, 0 for none (year lists only)
  bool sex = false;
  // Only from lastWomanState: the last first day of a period before the date.
  bool lastmesok = false;
  int lastmesdays = 0;
};

// The last mark that opens or closes a phase (ovulation is none) strictly before the day, and
// the last first day of a period before it.
WomanState lastWomanState(Store& store, Date day);

// Every day from `from` to `to`, both included, that has any record: its mark (1 without one),
// diet and sex mark, in date order.
std::vector<WomanState> womanStates(Store& store, Date from, Date to);

// The first mark strictly after the day that opens a phase or is `closing`; kOrdinaryDay when
// there is none.
int nextPhaseMark(Store& store, Date day, int closing);

// The days of a calendar year and the first day of the next, led by the state in force when the
// year began, when there is one.
std::vector<WomanState> prepareWomanData(Store& store, int year);

}  // namespace lad::health
