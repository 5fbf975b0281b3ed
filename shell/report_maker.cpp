#include "shell/report_maker.h"

namespace lad::shell {

namespace {

bool sameRequest(const report::ReportRequest& a, const report::ReportRequest& b) {
  return a.kind == b.kind && a.gid == b.gid && a.date == b.date && a.year == b.year &&
         a.target == b.target;
}

}  // namespace

ReportMaker::~ReportMaker() {
  {
    std::lock_guard lock(mutex_);
    stopping_ = true;
  }
  wake_.notify_all();
  if (worker_.joinable()) worker_.join();
}

std::shared_ptr<const ReportJob> ReportMaker::start(const report::ReportRequest& request) {
  std::lock_guard lock(mutex_);
  if (running_ && sameRequest(running_->request, request)) return running_;
  for (const auto& job : waiting_)
    if (sameRequest(job->request, request)) return job;
  auto job = std::make_shared<ReportJob>();
  job->request = request;
  waiting_.push_back(job);
  if (!worker_.joinable()) worker_ = std::thread([this] { work(); });
  wake_.notify_one();
  return job;
}

void ReportMaker::work() {
  std::unique_lock lock(mutex_);
  for (;;) {
    wake_.wait(lock, [this] { return stopping_ || !waiting_.empty(); });
    if (stopping_) return;
    running_ = std::move(waiting_.front());
    waiting_.pop_front();
    lock.unlock();
    make(*running_);
    lock.lock();
    running_.reset();
  }
}

void ReportMaker::make(ReportJob& job) {
  job.state = ReportJob::State::Running;
  report::ReportOptions options{imagesDir_, [&job](std::size_t done, std::size_t total) {
                                  job.total = total;
                                  job.done = done;
                                }};
  std::string error;
  const bool ok = report::makeReport(store_, job.request, options, &error);
  if (!ok) job.error = error;
  job.state = ok ? ReportJob::State::Done : ReportJob::State::Failed;
}

}  // namespace lad::shell
