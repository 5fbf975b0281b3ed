// Slows down guessing at the lock: after a few wrong codes each further try waits longer, up to
// a ceiling. It never shuts the owner out of her diary for good.
#pragma once

#include <chrono>

#include "core/value.h"

namespace lad::shell {

class LockThrottle {
 public:
  // How long the next try must still wait at `now`; zero when it may go ahead.
  std::chrono::seconds waitAt(Date now) const;
  void failed(Date now);
  void succeeded() { failures_ = 0; }
  int failures() const { return failures_; }

  // The pause after `failures` wrong codes in a row.
  static std::chrono::seconds delayAfter(int failures);

 private:
  int failures_ = 0;
  Date nextTry_{};
};

}  // namespace lad::shell
