// Contractions laid out from the pauses between them.
#pragma once

#include <vector>

#include "health/contraction.h"

namespace lad::testing {

// The first contraction starts at `first`; each next one starts its pause after the end of the
// one before. Every contraction lasts `len` seconds.
inline std::vector<health::Contraction> withPauses(Date first, const std::vector<int>& pauses,
                                                   int len = 40) {
  std::vector<health::Contraction> out;
  Date start = first;
  for (std::size_t i = 0; i <= pauses.size(); ++i) {
    if (i > 0) start = out.back().end + std::chrono::seconds(pauses[i - 1]);
    out.push_back(
        {static_cast<std::int64_t>(i + 1), start, start + std::chrono::seconds(len), len, 0});
  }
  return out;
}

}  // namespace lad::testing
