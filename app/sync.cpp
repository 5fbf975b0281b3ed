#include "app/sync.h"

#include <cstdio>

#include "app/terminal.h"
#include "cloud/cloud_pass.h"
#include "shell/application.h"

namespace lad::app {

namespace {

void printOutcome(const cloud::PassOutcome& outcome, int percent) {
  std::printf("%zu change files applied; the folder is %d%% complete\n",
              outcome.report.applied.size(), percent);
  for (const cloud::SkippedChange& skipped : outcome.report.skipped)
    std::printf("skipped %s: %s\n", skipped.name.c_str(), skipped.reason.c_str());
  for (const std::string& note : outcome.report.notes) std::printf("note %s\n", note.c_str());
  for (const std::string& error : outcome.importErrors) std::printf("%s\n", error.c_str());
  for (const cloud::CloudNotice& notice : outcome.notices) std::printf("%s\n", notice.text.c_str());
}

}  // namespace

int sync(int appid, const SyncArgs& args) {
  shell::Application app(ContextOptions{appid, 1, args.dataDir, "", nullptr, args.resourcesDir});
  Context& context = app.context();
  if (!args.cloudDir.empty()) {
    context.settings().set("cloudFolder", args.cloudDir.string());
    cloud::chooseCloudSync(context);
  }
  const int mode = context.values().cloudMode;
  if (mode != cloud::kCloudSync && mode != cloud::kCloudImport) {
    std::fprintf(stderr, "this diary does not sync through a cloud folder: give --cloud DIR\n");
    return 2;
  }
  const cloud::PassOutcome outcome =
      cloud::cloudPass(app.store(), {cloud::kSettleTime, nullptr, terminalProgress("files")});
  printOutcome(outcome, context.values().cloudPercent);
  context.settings().synchronize();
  return 0;
}

}  // namespace lad::app
