#include "health/contraction.h"

namespace lad::health {

std::int64_t secondsBetween(Date a, Date b) {
  return std::chrono::duration_cast<std::chrono::seconds>(b - a).count();
}

}  // namespace lad::health
