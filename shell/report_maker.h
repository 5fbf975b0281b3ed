// The reports of the installation, made on the installation's worker thread, so that no browser
// waits while a long diary is drawn. A request equal to one that is waiting or being made joins
// it instead of writing the same file twice.
#pragma once

#include <atomic>
#include <filesystem>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "reports/report_job.h"
#include "shell/job_queue.h"
#include "store/store.h"

namespace lad::shell {

// One document on its way (a report, or the photo book being saved); the worker writes it, any
// thread may read it.
struct ReportJob {
  enum class State { Waiting, Running, Done, Failed };
  enum class Document { Report, Book };

  reports::ReportRequest request;  // of a book, only the target
  Document document = Document::Report;
  std::atomic<State> state{State::Waiting};
  std::atomic<std::size_t> done{0};   // days or pages drawn
  std::atomic<std::size_t> total{0};  // to draw; 0 when there is nothing to count
  std::string error;                  // set before the state turns Failed

  bool finished() const { return state == State::Done || state == State::Failed; }
};

class ReportMaker {
 public:
  ReportMaker(Store& store, JobQueue& worker) : store_(store), worker_(worker) {}

  // Where the pictures of the reports are; set before the first report.
  void setImagesDir(std::filesystem::path dir) { imagesDir_ = std::move(dir); }

  std::shared_ptr<const ReportJob> start(const reports::ReportRequest& request);

 private:
  void make(ReportJob& job) const;

  Store& store_;
  JobQueue& worker_;
  std::filesystem::path imagesDir_;
  std::mutex mutex_;
  std::vector<std::shared_ptr<ReportJob>> unfinished_;
};

}  // namespace lad::shell
