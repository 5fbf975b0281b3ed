// The breast timer of a feeding: it runs for one side at a time, may go on from the minutes
// already fed at that side, and stops by itself at the end of the day it started on, so that a
// feeding never spills into the next day. The owner arms a one-second tick while it runs.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "core/dates.h"

namespace lad::health {

enum class BreastSide { Left, Right };

class BreastTimer {
 public:
  // Starts the side at now, counting `minutes` already fed as if they had run just before;
  // dayEnd is the first moment of the next day.
  void start(BreastSide side, std::int64_t minutes, Date now, Date dayEnd);
  // The whole minutes fed at the side, and the timer idle again; nullopt when it was idle.
  std::optional<std::int64_t> stop(Date now);
  // One tick: true while the next one is wanted, false once the day has ended.
  bool onTimer(Date now) const { return running_ && now < dayEnd_; }

  bool running() const { return running_; }
  BreastSide side() const { return side_; }
  // The time fed so far as "h:mm:ss", the hour without a leading zero.
  std::string clockText(Date now) const;

 private:
  std::int64_t seconds(Date now) const;

  bool running_ = false;
  BreastSide side_ = BreastSide::Left;
  Date start_;
  Date dayEnd_;
};

}  // namespace lad::health
