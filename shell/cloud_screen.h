// "Работа с облаком": the choice of the cloud mode and of the shared folder, the copy of the
// whole diary into the folder, and the import of the old format.
#pragma once

#include <string>

#include "shell/application.h"
#include "shell/screen.h"
#include "shell/screen_host.h"

namespace lad::shell {

class CloudScreen : public Screen {
 public:
  CloudScreen(Application& app, ScreenHost& host);

  Value view() override;
  EventResult tap(std::string_view target) override;
  EventResult change(std::string_view target, const Value& value) override;
  bool closed() const override { return closed_; }

 private:
  bool folderUsable() const;
  bool folderChanged() const;
  EventResult closeOK();
  EventResult optimizeOK();
  EventResult olddownloadOK();

  Application& app_;
  ScreenHost& host_;
  int choice_;          // the selector: off, the shared folder, the remote drive
  std::string folder_;  // the folder as typed, saved by the closing button
  bool closed_ = false;
};

// Runs the copy that the installation holds in steps on the main thread, the browsers redrawn
// between them, and tells the host when it has ended.
EventResult continueCloudCopy(Application& app, ScreenHost& host);

}  // namespace lad::shell
