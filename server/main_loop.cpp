#include "server/main_loop.h"

#include <cstdio>

namespace lad::server {

namespace {

// A failing task must not take the main thread down with it.
void runGuarded(const MainLoop::Task& task) {
  try {
    task();
  } catch (const std::exception& e) {
    std::fprintf(stderr, "main loop task failed: %s\n", e.what());
  } catch (...) {
    std::fprintf(stderr, "main loop task failed\n");
  }
}

}  // namespace

MainLoop::MainLoop() : thread_([this] { run(); }) {}

MainLoop::~MainLoop() {
  stop();
}

bool MainLoop::post(Task task) {
  {
    std::lock_guard lock(mutex_);
    if (stopping_) return false;
    tasks_.push_back(std::move(task));
  }
  wake_.notify_one();
  return true;
}

void MainLoop::addTimer(Duration delay, Task task, bool repeat) {
  {
    std::lock_guard lock(mutex_);
    if (stopping_) return;
    timers_.emplace(std::chrono::steady_clock::now() + delay,
                    Timer{delay, std::move(task), repeat});
  }
  wake_.notify_one();
}

void MainLoop::stop() {
  {
    std::lock_guard lock(mutex_);
    stopping_ = true;
  }
  wake_.notify_one();
  if (thread_.joinable() && !onMainThread()) thread_.join();
}

void MainLoop::runDueTimers(std::unique_lock<std::mutex>& lock) {
  const auto now = std::chrono::steady_clock::now();
  while (!timers_.empty() && timers_.begin()->first <= now) {
    auto node = timers_.extract(timers_.begin());
    Timer& timer = node.mapped();
    Task task = timer.task;
    if (timer.repeat) timers_.emplace(now + timer.interval, std::move(timer));
    lock.unlock();
    runGuarded(task);
    lock.lock();
  }
}

void MainLoop::run() {
  std::unique_lock lock(mutex_);
  for (;;) {
    runDueTimers(lock);
    if (!tasks_.empty()) {
      Task task = std::move(tasks_.front());
      tasks_.pop_front();
      lock.unlock();
      runGuarded(task);
      lock.lock();
      continue;
    }
    if (stopping_) return;
    if (timers_.empty())
      wake_.wait(lock);
    else
      wake_.wait_until(lock, timers_.begin()->first);
  }
}

}  // namespace lad::server
