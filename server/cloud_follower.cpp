#include "server/cloud_follower.h"

#include <cstdio>

#include "cloud/change_folder.h"

namespace lad::server {

CloudFollower::CloudFollower(MainLoop& loop, shell::Application& app, Done done)
    : loop_(loop), app_(app), done_(std::move(done)) {}

// The watcher follows the folder of the setting; none while the folder is not followed.
void CloudFollower::watch() {
  Context& context = app_.context();
  const bool follow = context.values().cloudWatching && cloud::hasCloudFolder(context);
  if (!follow) {
    watcher_.reset();
    return;
  }
  const auto folder = cloud::cloudFolderOf(context);
  if (watcher_ && watcher_->folder() == folder) return;
  watcher_ = std::make_unique<platform::FolderWatcher>(
      folder, [this] { loop_.post([this] { passSoon(); }); });
}

// A file that has just changed is applied once it has settled.
void CloudFollower::passSoon() {
  if (passScheduled_) return;
  passScheduled_ = true;
  loop_.addTimer(cloud::kSettleTime + std::chrono::milliseconds(100), [this] {
    passScheduled_ = false;
    poll();
  });
}

void CloudFollower::poll() {
  watch();
  if (!app_.context().values().cloudWatching || app_.cloudCopy()) return;
  const int percentBefore = app_.context().values().cloudPercent;
  const cloud::PassOutcome outcome =
      cloud::cloudPass(app_.store(), {cloud::kSettleTime, &refused_, {}});
  for (const cloud::SkippedChange& skipped : outcome.report.skipped)
    std::fprintf(stderr, "cloud: %s skipped: %s\n", skipped.name.c_str(), skipped.reason.c_str());
  for (const std::string& error : outcome.importErrors)
    std::fprintf(stderr, "cloud: %s\n", error.c_str());
  done_(outcome, app_.context().values().cloudPercent != percentBefore);
}

}  // namespace lad::server
