#include "shell/job_queue.h"

namespace lad::shell {

JobQueue::~JobQueue() {
  {
    std::lock_guard lock(mutex_);
    stopping_ = true;
  }
  wake_.notify_all();
  if (worker_.joinable()) worker_.join();
}

void JobQueue::post(std::function<void()> job) {
  std::lock_guard lock(mutex_);
  waiting_.push_back(std::move(job));
  if (!worker_.joinable()) worker_ = std::thread([this] { work(); });
  wake_.notify_one();
}

std::size_t JobQueue::waitUntilIdle() {
  std::unique_lock lock(mutex_);
  idle_.wait(lock, [this] { return !running_ && waiting_.empty(); });
  return finished_;
}

void JobQueue::work() {
  std::unique_lock lock(mutex_);
  for (;;) {
    wake_.wait(lock, [this] { return stopping_ || !waiting_.empty(); });
    if (stopping_) return;
    std::function<void()> job = std::move(waiting_.front());
    waiting_.pop_front();
    running_ = true;
    lock.unlock();
    job();
    lock.lock();
    running_ = false;
    ++finished_;
    if (waiting_.empty()) idle_.notify_all();
  }
}

}  // namespace lad::shell
