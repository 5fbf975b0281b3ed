// What one browser sees of the installation: its screens, its screen size, and the shortcut
// it was opened with. Data and settings belong to the installation and are shared by all
// sessions.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "shell/application.h"
#include "shell/main_menu.h"
#include "shell/message_box.h"
#include "shell/popup.h"
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

  // Puts a popup over the current screen; its answer goes to the action once, and closes it.
  // A tap may carry the popup's input in "value".
  using PopupAction = std::function<void(const PopupAnswer&)>;
  void openPopup(std::unique_ptr<Popup> popup, PopupAction action);

 private:
  EventResult tap(std::string_view target, const Value& value);
  EventResult answerPopup(std::string_view target, const Value& value);
  EventResult setViewport(const Value& event);
  EventResult setShortcut(const Value& event);
  EventResult becomeVisible();
  void quickStart();
  bool atRoot() const;

  Application& app_;
  MainMenu menu_;
  std::optional<WelcomeScreen> welcome_;
  std::optional<MessageBox> message_;
  std::unique_ptr<Popup> popup_;
  PopupAction popupAction_;
  std::string pendingShortcut_;
  std::string activeId_;
  ScreenMetrics metrics_;
  bool appeared_ = false;
  bool lockDue_ = false;
};

}  // namespace lad::shell
