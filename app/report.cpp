#include "app/report.h"

#include <cstdio>

#include "app/terminal.h"
#include "reports/report_job.h"
#include "shell/application.h"

namespace lad::app {

namespace {

reports::ReportKind kindOf(const std::string& kind) {
  if (kind == "pressure") return reports::ReportKind::Pressure;
  if (kind == "fluid") return reports::ReportKind::Fluid;
  return reports::ReportKind::Diary;
}

}  // namespace

int report(int appid, const ReportArgs& args) {
  if (const int refused = refuseWithoutDiary(appid, args.dataDir)) return refused;
  shell::Application app(ContextOptions{appid, 1, args.dataDir, "", nullptr, args.resourcesDir});
  Store& store = app.store();
  const Context& context = app.context();
  reports::ReportRequest request;
  request.kind = kindOf(args.kind);
  request.gid = reports::defaultReportProfile(store);
  if (request.gid.empty())
    return refuse("the diary in " + args.dataDir.string() + " has no profile");
  request.date = context.clock().now();
  if (!args.date.empty()) {
    const auto day = context.dates().dateFromStringFormat(args.date, "dd.MM.yyyy");
    if (!day || context.dates().dateToString(*day, "dd.MM.yyyy") != args.date)
      return refuse("--date " + args.date + " is no day of the calendar");
    request.date = *day;
  }
  request.year = args.year ? args.year : reports::defaultReportYear(store, request.gid);
  request.target = args.output;
  std::string error;
  if (!reports::makeReport(store, request, {args.imagesDir, terminalProgress("days")}, &error)) {
    std::fprintf(stderr, "%s\n", error.c_str());
    return 1;
  }
  std::printf("%s\n", args.output.c_str());
  return 0;
}

}  // namespace lad::app
