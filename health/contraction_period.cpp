#include "health/contraction_period.h"

namespace lad::health {

namespace {

std::string lastTwo(std::int64_t n) {
  const std::string padded = "0" + std::to_string(n);
  return padded.substr(padded.size() - 2);
}

}  // namespace

std::string cperiod(std::int64_t seconds) {
  const std::int64_t m = seconds / 60;
  return lastTwo(m) + ":" + lastTwo(seconds - 60 * m);
}

}  // namespace lad::health
