// The counter's one button: idle, running, and the two ticks that let the running view fade
// out after a stop. The owner arms a one-second one-shot timer whenever onTimer() asks for it.
#pragma once

#include <optional>
#include <string>

#include "health/contraction.h"

namespace lad::health {

class ContractionTimer {
 public:
  enum class Phase { Idle, Running, StopRequested, Closing };

  // Begins a contraction at now, taken in whole seconds; the owner arms the first tick.
  void start(Date now);
  // Ends the running contraction and returns it for storing; nullopt when none is running.
  std::optional<Contraction> stop(Date now);
  // One tick. True: arm the next one.
  bool onTimer();

  Phase phase() const { return phase_; }
  bool running() const { return phase_ == Phase::Running; }
  // Whether the running view is shown (it stays during the fade after a stop).
  bool visible() const { return phase_ != Phase::Idle; }
  // The running time as "mm:ss".
  std::string runningText(Date now) const;
  Date startDate() const { return start_; }

 private:
  Phase phase_ = Phase::Idle;
  Date start_;
};

}  // namespace lad::health
