#include "health/cycle_days.h"

#include <algorithm>
#include <map>

#include "core/context.h"
#include "store/store.h"

namespace lad::health {

namespace {

// The phase a mark opens, and whether it closes that phase on its own day.
struct MarkEffect {
  CyclePhase opens = CyclePhase::Ordinary;
  bool closes = false;
};

MarkEffect effectOf(int mark) {
  switch (mark) {
    case kPeriodFirstDay:
      return {CyclePhase::Period, false};
    case kPeriodLastDay:
      return {CyclePhase::Period, true};
    case kPregnancyFirstDay:
      return {CyclePhase::Pregnancy, false};
    case kPregnancyLastDay:
      return {CyclePhase::Pregnancy, true};
    default:
      return {};
  }
}

// The running phase as the walk through the days carries it.
struct Walk {
  CyclePhase phase = CyclePhase::Ordinary;
  std::size_t runStart = 0;    // index of the run's first day in this year
  int lastFirstDay = -1;       // running number of the last first day of a period
  std::size_t lastWalked = 0;  // days of the year up to today
};

// A run ended without its closing mark stays open.
void markOpen(std::vector<CycleDay>& days, std::size_t from, std::size_t to) {
  for (std::size_t i = from; i < to; ++i) days[i].open = true;
}

// The walk over the year's states. The run still in force at the year's end is left for the
// caller, who knows whether a later mark closes it.
std::vector<CycleDay> walkYear(const DateCodec& dates, const std::vector<WomanState>& states,
                               int year, Date today, Walk& walk) {
  const Date first = dates.encodeDate(1, 1, year);
  const int firstNumber = dates.getDays(dates.encodeDate(1, 1, 2000), first);
  std::map<int, const WomanState*> byNumber;
  for (const WomanState& s : states) {
    if (s.days >= firstNumber) {
      byNumber[s.days] = &s;
      continue;
    }
    // The state in force when the year began.
    const MarkEffect effect = effectOf(s.tp);
    if (!effect.closes) walk.phase = effect.opens;
    if (s.lastmesok) walk.lastFirstDay = s.lastmesdays;
  }
  const int todayNumber = dates.getDays(dates.encodeDate(1, 1, 2000), dates.noTime(today));
  const int count = dates.getDays(first, dates.encodeDate(1, 1, year + 1));
  std::vector<CycleDay> days(count);
  for (int i = 0; i < count; ++i) {
    CycleDay& d = days[i];
    const int number = firstNumber + i;
    d.day = dates.addDays(first, i);
    if (auto it = byNumber.find(number); it != byNumber.end()) {
      d.mark = it->second->tp;
      d.dieta = it->second->dieta;
      d.sex = it->second->sex;
    }
    if (number > todayNumber) continue;
    walk.lastWalked = i + 1;
    const MarkEffect effect = effectOf(d.mark);
    if (effect.opens != CyclePhase::Ordinary && !effect.closes) {
      if (walk.phase != CyclePhase::Ordinary) markOpen(days, walk.runStart, i);
      walk.phase = effect.opens;
      walk.runStart = i;
    }
    if (d.mark == kPeriodFirstDay) walk.lastFirstDay = number;
    d.phase = d.mark == kOvulation ? CyclePhase::Ovulation
              : effect.closes      ? effect.opens
                                   : walk.phase;
    if (walk.phase != CyclePhase::Pregnancy && walk.lastFirstDay >= 0)
      d.cycleDay = number - walk.lastFirstDay + 1;
    // A closing mark ends only the phase it belongs to.
    if (effect.closes && walk.phase == effect.opens) walk.phase = CyclePhase::Ordinary;
  }
  return days;
}

}  // namespace

std::vector<CycleDay> cycleYear(Store& store, int year, Date today) {
  const DateCodec& dates = store.context().dates();
  Walk walk;
  std::vector<CycleDay> days = walkYear(dates, prepareWomanData(store, year), year, today, walk);
  if (walk.phase == CyclePhase::Ordinary) return days;
  const int closing = walk.phase == CyclePhase::Period ? kPeriodLastDay : kPregnancyLastDay;
  if (nextPhaseMark(store, dates.encodeDate(31, 12, year), closing) != closing)
    markOpen(days, walk.runStart, walk.lastWalked);
  return days;
}

std::optional<CycleDay> cycleToday(Store& store, Date now) {
  const DateCodec& dates = store.context().dates();
  const auto year = cycleYear(store, dates.decodeDate(now).year, now);
  const CycleDay* today = cycleDayAt(year, dates, now);
  return today ? std::optional(*today) : std::nullopt;
}

const CycleDay* cycleDayAt(const std::vector<CycleDay>& year, const DateCodec& dates, Date day) {
  if (year.empty()) return nullptr;
  const int index = dates.getDays(year.front().day, day);
  return index >= 0 && index < static_cast<int>(year.size()) ? &year[index] : nullptr;
}

}  // namespace lad::health
