#include "app/book.h"

#include <cstdio>

#include "app/terminal.h"
#include "reports/book_job.h"
#include "reports/report_job.h"
#include "shell/application.h"

namespace lad::app {

int book(int appid, const BookArgs& args) {
  if (const int refused = refuseWithoutDiary(appid, args.dataDir)) return refused;
  shell::Application app(
      ContextOptions{appid, 1, args.dataDir, LADANEYA_VERSION, nullptr, args.resourcesDir});
  Store& store = app.store();
  reports::BookRequest request;
  request.gid = reports::defaultReportProfile(store);
  if (request.gid.empty())
    return refuse("the diary in " + args.dataDir.string() + " has no profile");
  request.kind = args.kind;
  request.year = args.year ? args.year : reports::defaultReportYear(store, request.gid);
  request.target = args.output;
  reports::BookOptions options;
  options.imagesDir = args.imagesDir;
  options.progress = terminalProgress("pages");
  std::string error;
  if (!reports::makeBook(store, request, options, &error)) {
    std::fprintf(stderr, "%s\n", error.c_str());
    return 1;
  }
  std::printf("%s\n", args.output.c_str());
  return 0;
}

}  // namespace lad::app
