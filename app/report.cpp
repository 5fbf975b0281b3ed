#include "app/report.h"

#include <unistd.h>

#include <cstdio>

#include "reports/report_job.h"
#include "shell/application.h"

namespace lad::app {

namespace {

report::ReportKind kindOf(const std::string& kind) {
  if (kind == "pressure") return report::ReportKind::Pressure;
  if (kind == "fluid") return report::ReportKind::Fluid;
  return report::ReportKind::Diary;
}

// "days 12 of 294" rewritten in place, when a person watches the terminal.
std::function<void(std::size_t, std::size_t)> terminalProgress() {
  if (!isatty(STDERR_FILENO)) return {};
  return [](std::size_t done, std::size_t total) {
    std::fprintf(stderr, "\rdays %zu of %zu", done, total);
    if (done == total) std::fprintf(stderr, "\n");
  };
}

int refuse(const std::string& message) {
  std::fprintf(stderr, "%s\n", message.c_str());
  return 2;
}

}  // namespace

int report(int appid, const ReportArgs& args) {
  const Edition& edition = *editionFor(appid);
  if (!std::filesystem::exists(args.dataDir / "Documents" / "reserv" / edition.database))
    return refuse("no diary of " + std::string(edition.program) + " in " + args.dataDir.string() +
                  " (see --data)");
  shell::Application app(ContextOptions{appid, 1, args.dataDir, "", nullptr, args.resourcesDir});
  Store& store = app.store();
  const Context& context = app.context();
  report::ReportRequest request;
  request.kind = kindOf(args.kind);
  request.gid = report::defaultReportProfile(store);
  if (request.gid.empty())
    return refuse("the diary in " + args.dataDir.string() + " has no profile");
  request.date = context.clock().now();
  if (!args.date.empty()) {
    const auto day = context.dates().dateFromStringFormat(args.date, "dd.MM.yyyy");
    if (!day || context.dates().dateToString(*day, "dd.MM.yyyy") != args.date)
      return refuse("--date " + args.date + " is no day of the calendar");
    request.date = *day;
  }
  request.year = args.year ? args.year : report::defaultReportYear(store, request.gid);
  request.target = args.output;
  std::string error;
  if (!report::makeReport(store, request, {args.imagesDir, terminalProgress()}, &error)) {
    std::fprintf(stderr, "%s\n", error.c_str());
    return 1;
  }
  std::printf("%s\n", args.output.c_str());
  return 0;
}

}  // namespace lad::app
