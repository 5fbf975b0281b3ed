// The days of a calendar year as the woman's own marks make them: the phase each day stands in,
// and the day of her cycle counted from her last marked first day. A phase lasts from its first
// mark to its closing mark; one still open runs up to today and never further, so nothing is
// shown for a day she could not have marked yet.
#pragma once

#include <optional>
#include <vector>

#include "health/woman_states.h"

namespace lad {
class DateCodec;
class Store;
}  // namespace lad

namespace lad::health {

enum class CyclePhase { Ordinary, Period, Ovulation, Pregnancy };

struct CycleDay {
  Date day{};
  int mark = kOrdinaryDay;  // the day's own mark
  CyclePhase phase = CyclePhase::Ordinary;
  bool open = false;  // in a phase whose closing day is not marked (yet)
  int cycleDay = 0;   // 1 on a marked first day of a period; 0 when unknown or in a pregnancy
  int dieta = 0;
  bool sex = false;
};

// Every day from 1 January to 31 December of the year, from the woman's diary.
std::vector<CycleDay> cycleYear(Store& store, int year, Date today);

// Today as the woman's diary makes it.
std::optional<CycleDay> cycleToday(Store& store, Date now);

// The day of that date in the list, or nullptr.
const CycleDay* cycleDayAt(const std::vector<CycleDay>& year, const DateCodec& dates, Date day);

}  // namespace lad::health
