#include "health/breast_timer.h"

#include <algorithm>

namespace lad::health {

namespace {

std::string twoPlaces(std::int64_t n) {
  return (n < 10 ? "0" : "") + std::to_string(n);
}

}  // namespace

void BreastTimer::start(BreastSide side, std::int64_t minutes, Date now, Date dayEnd) {
  side_ = side;
  start_ = std::chrono::floor<std::chrono::seconds>(now) - std::chrono::minutes(minutes);
  dayEnd_ = dayEnd;
  running_ = true;
}

std::optional<std::int64_t> BreastTimer::stop(Date now) {
  if (!running_) return std::nullopt;
  running_ = false;
  return seconds(now) / 60;
}

// Whole seconds from the start, counted no further than the end of the day.
std::int64_t BreastTimer::seconds(Date now) const {
  const Date until = std::clamp(now, start_, std::max(start_, dayEnd_));
  return std::chrono::floor<std::chrono::seconds>(until - start_).count();
}

std::string BreastTimer::clockText(Date now) const {
  const std::int64_t s = seconds(now);
  return std::to_string(s / 3600) + ":" + twoPlaces(s / 60 % 60) + ":" + twoPlaces(s % 60);
}

}  // namespace lad::health
