#include "shell/lock/lock_throttle.h"

#include <algorithm>

namespace lad::shell {

namespace {

constexpr int kFreeTries = 3;
constexpr std::chrono::seconds kLongestDelay{60};

}  // namespace

std::chrono::seconds LockThrottle::delayAfter(int failures) {
  if (failures < kFreeTries) return std::chrono::seconds{0};
  const int doublings = std::min(failures - kFreeTries, 6);
  return std::min(std::chrono::seconds{1 << doublings}, kLongestDelay);
}

std::chrono::seconds LockThrottle::waitAt(Date now) const {
  if (now >= nextTry_) return std::chrono::seconds{0};
  return std::chrono::ceil<std::chrono::seconds>(nextTry_ - now);
}

void LockThrottle::failed(Date now) {
  ++failures_;
  nextTry_ = now + delayAfter(failures_);
}

}  // namespace lad::shell
