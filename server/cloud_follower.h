// Keeps an installation in step with its cloud folder while it runs: a pass soon after files in
// the folder change, and one at every poll for folders whose file system tells of no changes.
#pragma once

#include <functional>
#include <memory>

#include "cloud/cloud_pass.h"
#include "platform/folder_watcher.h"
#include "server/main_loop.h"
#include "shell/application.h"

namespace lad::server {

class CloudFollower {
 public:
  using Done = std::function<void(const cloud::PassOutcome&, bool percentChanged)>;

  // `done` hears of every pass, on the main loop.
  CloudFollower(MainLoop& loop, shell::Application& app, Done done);

  // Main loop only: watches the folder that is set now, and runs a pass when the folder is
  // followed in this run and no copy into it is under way.
  void poll();

  // How often the folder is looked at without a notice.
  static constexpr std::chrono::seconds kPollInterval{5};

 private:
  void watch();
  void passSoon();

  MainLoop& loop_;
  shell::Application& app_;
  Done done_;
  std::unique_ptr<platform::FolderWatcher> watcher_;
  bool passScheduled_ = false;  // main loop only
  cloud::RefusedFiles refused_;
};

}  // namespace lad::server
