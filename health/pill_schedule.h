// The medicine rows of the day schedule: courses taken at any time spread over the day, the
// others placed around the meals they are bound to.
#pragma once

#include <string>
#include <string_view>

#include "core/value.h"
#include "health/day_schedule.h"

namespace lad::health {

// Adds the rows of the day's `pills` value, or the notice that the day has none.
void addMedicines(const Context& context, Schedule& rows, Date day, const std::string& pills,
                  const List& listData, std::string_view meals);

}  // namespace lad::health
