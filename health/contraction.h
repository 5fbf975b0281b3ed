// One timed contraction. Its start and end are whole seconds, as stored; everything the counter
// shows is computed from them and from `len`.
#pragma once

#include <cstdint>

#include "core/value.h"

namespace lad::health {

struct Contraction {
  std::int64_t schid = -1;  // row key; -1 when the insert failed
  Date start;
  Date end;
  std::int64_t len = 0;   // duration in seconds
  std::int64_t len2 = 0;  // pause before it in seconds, filled in by the grouping
};

// Whole seconds from a to b.
std::int64_t secondsBetween(Date a, Date b);

}  // namespace lad::health
