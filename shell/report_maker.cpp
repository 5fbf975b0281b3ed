#include "shell/report_maker.h"

#include <algorithm>

namespace lad::shell {

namespace {

bool sameRequest(const reports::ReportRequest& a, const reports::ReportRequest& b) {
  return a.kind == b.kind && a.gid == b.gid && a.date == b.date && a.year == b.year &&
         a.target == b.target;
}

}  // namespace

std::shared_ptr<const ReportJob> ReportMaker::start(const reports::ReportRequest& request) {
  std::lock_guard lock(mutex_);
  std::erase_if(unfinished_, [](const auto& job) { return job->finished(); });
  for (const auto& job : unfinished_)
    if (sameRequest(job->request, request)) return job;
  auto job = std::make_shared<ReportJob>();
  job->request = request;
  unfinished_.push_back(job);
  worker_.post([this, job] { make(*job); });
  return job;
}

void ReportMaker::make(ReportJob& job) const {
  job.state = ReportJob::State::Running;
  reports::ReportOptions options{imagesDir_, [&job](std::size_t done, std::size_t total) {
                                   job.total = total;
                                   job.done = done;
                                 }};
  std::string error;
  const bool ok = reports::makeReport(store_, job.request, options, &error);
  if (!ok) job.error = error;
  job.state = ok ? ReportJob::State::Done : ReportJob::State::Failed;
}

}  // namespace lad::shell
