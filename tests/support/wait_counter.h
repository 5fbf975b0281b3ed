// A counter that other threads bump and a test waits on, with a deadline far beyond any
// ordinary delay so that a slow machine does not fail the test.
#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>

namespace lad::testing {

class WaitCounter {
 public:
  void bump() {
    {
      std::lock_guard lock(mutex_);
      ++value_;
    }
    changed_.notify_all();
  }
  // False when the deadline passed first.
  bool waitAtLeast(int n) {
    std::unique_lock lock(mutex_);
    return changed_.wait_for(lock, std::chrono::seconds(15), [&] { return value_ >= n; });
  }
  int value() {
    std::lock_guard lock(mutex_);
    return value_;
  }

 private:
  std::mutex mutex_;
  std::condition_variable changed_;
  int value_ = 0;
};

}  // namespace lad::testing
