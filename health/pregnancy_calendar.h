// Where a pregnancy stands: its day, week, trimester and period, and the short texts that say
// so. Everything is read from the pregnancy's setup dictionary: `dat1` (first day of the last
// menstruation), `dat2` (conception), `birthdate` (expected birth) and `birthdate2` (the real
// birth, absent while the pregnancy runs) as dates, `birthresult` as text and `sex`. A date
// that is absent or no date counts as unknown.
#pragma once

#include <string>

#include "core/value.h"

namespace lad {
class Context;
}  // namespace lad

namespace lad::health {

// The texts of ageString, by the number the screens know them by.
enum class AgeMode {
  ObstetricAge = 1,  // time since the first day of the last menstruation
  TimeLeft,          // time to the expected birth
  ConceptionAge,     // time since conception
  RunningWeek,       // "12 неделя"
  ObstetricMonths,   // the obstetric age in years, months and days
  ConceptionMonths,  // the age from conception in years, months and days
  Percent,           // share of the 280 days passed
  EmbryoWeek,        // week counted from conception, as a number
  PeriodName,        // embryonic or foetal period
  RunningDay,        // day of the running week
  ShortBirthResult,  // height and weight at birth
  PassedTime,        // the obstetric age with a verb
  LongBirthResult,   // height, weight and time of birth with the baby named
};

// The day the counts run to: the real date of birth once there is one (so a completed pregnancy
// stands still), otherwise today.
Date pregnancyEndDay(const Context& context, const Map& setup);

// Day of the pregnancy, day 1 being `dat1`; 0 on the day before `dat1` and 1 further back.
// 1 when `dat1` is unknown.
int getCurDay(const Context& context, const Map& setup);
// Week of the pregnancy, 1 at the least (also when `dat1` is unknown).
int getCurWeek(const Context& context, const Map& setup);
// The period of the pregnancy is counted as its week.
int getCurPeriod(const Context& context, const Map& setup);

// Trimester of a week: 1 up to week 13, 2 up to week 26, 3 after.
int trimester(int week);
// "Первый триместр", "Второй триместр" or "Третий триместр", translated.
std::string trimesterName(const Context& context, int week);
// Past week 42 the screens show "-" in place of the week and the day.
bool weekIsShown(int week);

// "dd.MM-dd.MM" from the first day of week `first` to the last day of week `last`; empty when
// `dat1` is unknown.
std::string weekStartEnd(const Context& context, int first, int last, const Map& setup);

// One text about the pregnancy. When the date a mode counts from is unknown the text is "-"
// for the ages and the time left, "1" for the embryo week, and empty for the others.
std::string ageString(const Context& context, AgeMode mode, const Map& setup);

// The main menu's line under a running pregnancy: the time passed and the day of the running
// week, or "Срок указан неправильно" when neither can be said.
std::string pregnancyStateLine(const Context& context, const Map& setup);

}  // namespace lad::health
