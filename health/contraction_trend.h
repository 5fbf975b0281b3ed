// Whether the intervals between contractions shorten, and the message that says what to do.
#pragma once

#include <string>
#include <vector>

#include "health/contraction.h"

namespace lad::health {

struct TrendMessage {
  std::string text;  // untranslated
  int regim = 1;     // 1 normal, 2 hint, 3 alarm
  bool operator==(const TrendMessage&) const = default;
};

TrendMessage testTrend(const std::vector<Contraction>& contractions);

}  // namespace lad::health
