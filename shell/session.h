// What one browser sees of the installation: its screens, its screen size, and the shortcut
// it was opened with. Data and settings belong to the installation and are shared by all
// sessions.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "shell/application.h"
#include "shell/background_list.h"
#include "shell/diary/diary_state.h"
#include "shell/lock/password_lock.h"
#include "shell/main_menu.h"
#include "shell/message_box.h"
#include "shell/page_ring.h"
#include "shell/report_panel.h"
#include "shell/screen_host.h"

namespace lad::shell {

struct ScreenMetrics {
  bool isTablet = false;
  double scaleX = 1.0;  // portrait width / 320
  double scaleY = 1.0;  // portrait height / 480
};

class Session : public ScreenHost {
 public:
  // With the lock on, a new session starts behind it.
  explicit Session(Application& app);

  // The screen on top; the first view of the first session after a launch brings the
  // greeting when this version has not shown it yet. With a page in front the view is a
  // "ring": the page, the page waiting behind it and the menu under both.
  Value view();
  // Takes one event from the browser:
  //   {"type": "tap", "target": id}, {"type": "change", "target": id, "value": v} for an input,
  //   {"type": "viewport", "width": w, "height": h},
  //   {"type": "visible"}, {"type": "hidden"}, {"type": "shortcut", "name": "SCHVATKI"},
  //   {"type": "drag", "offset": px, "width": px} when the finger lifts off a dragged page,
  //   {"type": "tilt", "x": g, "upsideDown": bool} every 0.3 s while the page is shown,
  //   {"type": "authenticator" | "fingerprint" | "fingerprintRegister", ...} (FingerprintReader).
  EventResult handle(const Value& event);
  // This browser's fingerprint reader; the host sets the host name the browser uses.
  FingerprintReader& fingerprint() { return fingerprint_; }

  const ScreenMetrics& metrics() const { return metrics_; }
  // The last activation asked for the password lock.
  bool lockDue() const { return lockDue_; }
  // The lock covers everything: the session shows it and takes nothing else.
  bool locked() const { return lock_ && lock_->mode() == LockMode::Check; }
  // The menu's password switch turned on: the lock takes a new code.
  void askNewPassword();
  // The menu's background row: the list of backgrounds.
  void showBackgrounds();
  // The settings of a pregnancy or a child, or a new one without a guid.
  void showProfile(std::optional<std::string> gid);
  // The profile this browser works on.
  const std::string& activeId() const { return menu_.activeId(); }
  // The page in front, or nothing while the menu is.
  std::optional<int> frontPage() const { return ring_.front(); }
  // The reports this browser asked for.
  const ReportPanel& reports() const { return reports_; }

  void push(std::shared_ptr<Screen> screen) override;
  // A tap may carry the popup's input in "value".
  void openPopup(std::unique_ptr<Popup> popup, PopupAction action) override;
  void showMessage(MessageBox message) override;
  EventResult followDocument(std::shared_ptr<const ReportJob> job) override {
    return reports_.follow(std::move(job));
  }
  // A reminder whose minute came: the box "Напоминание", which gathers those that come
  // together.
  void showReminder(const std::string& text);

 private:
  EventResult dispatch(const Value& event);
  EventResult tap(std::string_view target, const Value& value);
  EventResult change(const Value& event);
  EventResult tapLock(std::string_view target);
  EventResult fingerprintEvent(const Value& event);
  EventResult afterLock(EventResult result);
  EventResult tapPage(std::string_view target);
  EventResult togglePassword();
  void addMenuCommands();
  void showGreeting(Greeting greeting);
  void popClosed();
  void showLock(LockMode mode);
  Value withBackground(Value screen) const;
  EventResult answerPopup(std::string_view target, const Value& value);
  EventResult setViewport(const Value& event);
  EventResult setShortcut(const Value& event);
  EventResult becomeVisible();
  EventResult drag(const Value& event);
  EventResult tilt(const Value& event);
  EventResult openTab(int page, bool fromMenu = true);
  std::shared_ptr<Screen> pageScreen(int page, bool fromMenu);
  std::string profileId();
  void reopenPages();
  void gotoNextPage();
  void gotoMenu();
  void quickStart();
  bool atRoot() const;
  Value ringView();

  Application& app_;
  MainMenu menu_;
  PageRing ring_;
  std::shared_ptr<Screen> page_;    // the screen of the front page
  std::shared_ptr<Screen> next_;    // the page waiting behind it, when it is another one
  std::uint64_t pagesVersion_ = 0;  // the installation's data version they were built at
  TiltNavigator tilt_;
  std::vector<std::shared_ptr<Screen>> stack_;  // screens over the menu and pages, top last
  std::optional<MessageBox> message_;
  FingerprintReader fingerprint_;
  std::optional<PasswordLock> lock_;
  std::unique_ptr<Popup> popup_;
  PopupAction popupAction_;
  std::string pendingShortcut_;
  ScreenMetrics metrics_;
  DiaryState diary_;
  ReportPanel reports_{app_, *this};
  bool appeared_ = false;
  bool lockDue_ = false;
};

}  // namespace lad::shell
