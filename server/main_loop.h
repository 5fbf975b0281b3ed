// The installation's main thread: all work on the installation's data and screens runs here,
// one task at a time, in the order posted. Other threads post work and may wait for its result.
#pragma once

#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <future>
#include <map>
#include <mutex>
#include <stdexcept>
#include <thread>

namespace lad::server {

class MainLoop {
 public:
  using Task = std::function<void()>;
  using Duration = std::chrono::steady_clock::duration;

  MainLoop();
  ~MainLoop();
  MainLoop(const MainLoop&) = delete;
  MainLoop& operator=(const MainLoop&) = delete;

  // False when the loop has stopped and the task will never run.
  bool post(Task task);

  // Runs f on the main thread and returns its result; throws std::runtime_error when the loop
  // has stopped. Called on the main thread itself, it runs f at once.
  template <class F>
  auto call(F f) -> decltype(f()) {
    using R = decltype(f());
    if (onMainThread()) return f();
    auto task = std::make_shared<std::packaged_task<R()>>(std::move(f));
    auto result = task->get_future();
    if (!post([task] { (*task)(); })) throw std::runtime_error("the installation is shutting down");
    return result.get();
  }

  // Runs the task on the main thread after the delay, again every interval if repeat is set.
  void addTimer(Duration delay, Task task, bool repeat = false);

  // Runs what was posted before, then ends the thread. Timers that are not due are dropped.
  void stop();
  bool onMainThread() const { return std::this_thread::get_id() == thread_.get_id(); }

 private:
  struct Timer {
    Duration interval;
    Task task;
    bool repeat;
  };
  void run();
  void runDueTimers(std::unique_lock<std::mutex>& lock);

  std::mutex mutex_;
  std::condition_variable wake_;
  std::deque<Task> tasks_;
  std::multimap<std::chrono::steady_clock::time_point, Timer> timers_;
  bool stopping_ = false;
  std::thread thread_;
};

}  // namespace lad::server
