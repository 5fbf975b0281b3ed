// What one browser sees of the installation: its screens, its screen size, and the shortcut
// it was opened with. Data and settings belong to the installation and are shared by all
// sessions.
#pragma once

#include <optional>
#include <string>

#include "shell/application.h"
#include "shell/contraction_screen.h"
#include "shell/main_menu.h"
#include "shell/message_box.h"
#include "shell/welcome_screen.h"

namespace lad::shell {

struct ScreenMetrics {
  bool isTablet = false;
  double scaleX = 1.0;  // portrait width / 320
  double scaleY = 1.0;  // portrait height / 480
};

class Session {
 public:
  explicit Session(Application& app) : app_(app), menu_(app.context()) {}

  // The screen on top; the first view of the first session after a launch brings the
  // greeting when this version has not shown it yet.
  Value view();
  // Takes one event from the browser:
  //   {"type": "tap", "target": id}, {"type": "viewport", "width": w, "height": h},
  //   {"type": "visible"}, {"type": "hidden"}, {"type": "shortcut", "name": "SCHVATKI"}.
  EventResult handle(const Value& event);

  const ScreenMetrics& metrics() const { return metrics_; }
  // The last activation asked for the password lock.
  bool lockDue() const { return lockDue_; }
  // The profile this browser works on.
  const std::string& activeId() const { return activeId_; }

 private:
  EventResult tap(std::string_view target);
  EventResult setViewport(const Value& event);
  EventResult setShortcut(const Value& event);
  EventResult becomeVisible();
  void quickStart();
  bool atRoot() const;

  Application& app_;
  MainMenu menu_;
  std::optional<WelcomeScreen> welcome_;
  std::optional<MessageBox> message_;
  std::shared_ptr<ContractionScreen> contractions_;  // opened by the "SCHVATKI" shortcut
  std::string pendingShortcut_;
  std::string activeId_;
  ScreenMetrics metrics_;
  bool appeared_ = false;
  bool lockDue_ = false;
};

}  // namespace lad::shell
