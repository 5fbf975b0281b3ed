// How a day of the woman's cycle reads on screen: the name of its phase for the browser's
// colours, the short mark of a diary cell, and the line about today.
#pragma once

#include <optional>
#include <string>

#include "health/cycle_days.h"
#include "shell/views/cycle.h"

namespace lad {
class Context;
}

namespace lad::shell {

// "period", "ovulation", "pregnancy", or "" for an ordinary day.
std::string phaseName(health::CyclePhase phase);

// The day of the cycle as shown: past two months from the last first day a count says nothing
// of a cycle any more, so 0 then, as when no first day is known.
int shownCycleDay(const health::CycleDay& day);

// The mark a diary cell shows for the day, leading to `target`; none for a day that stands
// outside any known cycle.
std::optional<CycleMarkView> cycleMark(const Context& context, const health::CycleDay& day,
                                       std::string target);

// Where today stands: the day of the cycle and the days since the last first day, or the
// pregnancy; "" when no first day has been marked.
std::string cycleSummary(const Context& context, const health::CycleDay& today);

}  // namespace lad::shell
