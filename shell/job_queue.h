// One worker thread that runs long jobs (reports, the photo book) one after another, away from
// the main thread, in the order they were posted.
#pragma once

#include <condition_variable>
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

 private:
  void work();

  std::mutex mutex_;
  std::condition_variable wake_;
  std::deque<std::function<void()>> waiting_;
  bool stopping_ = false;
  std::thread worker_;
};

}  // namespace lad::shell
