// The reports of the installation, made one at a time on a worker thread of their own, so that
// no browser waits while a long diary is drawn. A request equal to one that is waiting or being
// made joins it instead of writing the same file twice.
#pragma once

#include <atomic>
#include <condition_variable>
#include <deque>
#include <filesystem>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

#include "reports/report_job.h"
#include "store/store.h"

namespace lad::shell {

// One report on its way; the worker writes it, any thread may read it.
struct ReportJob {
  enum class State { Waiting, Running, Done, Failed };

  report::ReportRequest request;
  std::atomic<State> state{State::Waiting};
  std::atomic<std::size_t> done{0};   // days drawn
  std::atomic<std::size_t> total{0};  // days to draw; 0 for a one-page report
  std::string error;                  // set before the state turns Failed

  bool finished() const { return state == State::Done || state == State::Failed; }
};

class ReportMaker {
 public:
  explicit ReportMaker(Store& store) : store_(store) {}
  // Finishes the report being made and drops those still waiting.
  ~ReportMaker();
  ReportMaker(const ReportMaker&) = delete;
  ReportMaker& operator=(const ReportMaker&) = delete;

  // Where the pictures of the reports are; set before the first report.
  void setImagesDir(std::filesystem::path dir) { imagesDir_ = std::move(dir); }

  std::shared_ptr<const ReportJob> start(const report::ReportRequest& request);

 private:
  void work();
  void make(ReportJob& job);

  Store& store_;
  std::filesystem::path imagesDir_;
  std::mutex mutex_;
  std::condition_variable wake_;
  std::deque<std::shared_ptr<ReportJob>> waiting_;
  std::shared_ptr<ReportJob> running_;
  bool stopping_ = false;
  std::thread worker_;
};

}  // namespace lad::shell
