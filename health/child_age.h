// An age told in calendar years, months and days: "1 год, 2 месяца и 3 дня".
#pragma once

#include <string>

#include "core/value.h"

namespace lad {
class Context;
}  // namespace lad

namespace lad::health {

// The calendar difference from `from` to `to` (both taken at their midnight) as text. Parts
// that are 0 or negative are left out. `nodays` leaves the days out too; `noempty` gives
// "Только что родился" where no year, month or day would be said.
std::string monthAge(const Context& context, Date from, Date to, bool noempty, bool nodays);

}  // namespace lad::health
