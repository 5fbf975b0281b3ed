// "Календарь напоминаний": the secret address of the installation's reminders for the phone's
// calendar app, with the way to make a new one when the old has reached the wrong hands.
#pragma once

#include "shell/application.h"
#include "shell/screen.h"
#include "shell/screen_host.h"

namespace lad::shell {

class ReminderFeedScreen : public Screen {
 public:
  ReminderFeedScreen(Application& app, ScreenHost& host) : app_(app), host_(host) {}

  Value view() override;
  EventResult tap(std::string_view target) override;
  bool closed() const override { return closed_; }

 private:
  Application& app_;
  ScreenHost& host_;
  bool closed_ = false;
};

}  // namespace lad::shell
