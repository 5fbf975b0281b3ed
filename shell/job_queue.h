// One worker thread that runs long jobs (reports, the photo book) one after another, away from
// the main thread, in the order they were posted.
#pragma once

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

namespace lad::shell {

class JobQueue {
 public:
  JobQueue() = default;
  // Finishes the job being run and drops those still waiting.
  ~JobQueue();
  JobQueue(const JobQueue&) = delete;
  JobQueue& operator=(const JobQueue&) = delete;

  void post(std::function<void()> job);
  // Blocks until every job posted so far has run; returns how many jobs have run in all.
  std::size_t waitUntilIdle();

 private:
  void work();

  std::mutex mutex_;
  std::condition_variable wake_;
  std::condition_variable idle_;
  std::deque<std::function<void()>> waiting_;
  bool running_ = false;
  std::size_t finished_ = 0;
  bool stopping_ = false;
  std::thread worker_;
};

}  // namespace lad::shell
