#include "health/contraction_timer.h"

#include <algorithm>

#include "health/contraction_period.h"

namespace lad::health {

namespace {

Date wholeSeconds(Date d) {
  return std::chrono::floor<std::chrono::seconds>(d);
}

}  // namespace

void ContractionTimer::start(Date now) {
  start_ = wholeSeconds(now);
  phase_ = Phase::Running;
}

std::optional<Contraction> ContractionTimer::stop(Date now) {
  if (phase_ != Phase::Running) return std::nullopt;
  phase_ = Phase::StopRequested;
  const Date end = std::max(start_, wholeSeconds(now));
  return Contraction{-1, start_, end, secondsBetween(start_, end), 0};
}

bool ContractionTimer::onTimer() {
  switch (phase_) {
    case Phase::Running:
      return true;
    case Phase::StopRequested:
      phase_ = Phase::Closing;
      return true;
    case Phase::Closing:
      phase_ = Phase::Idle;
      return false;
    case Phase::Idle:
      break;
  }
  return false;
}

std::string ContractionTimer::runningText(Date now) const {
  return cperiod(std::max<std::int64_t>(0, secondsBetween(start_, now)));
}

}  // namespace lad::health
