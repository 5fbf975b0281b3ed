#include "shell/session.h"

#include <algorithm>
#include <functional>

#include "core/ids.h"
#include "shell/book/book_kinds.h"
#include "shell/checks/check_screen.h"
#include "shell/child/child_dialog.h"
#include "shell/cloud_screen.h"
#include "shell/diary/day_editor.h"
#include "shell/pages.h"
#include "shell/profile_editor.h"
#include "shell/reminder_feed_screen.h"
#include "shell/theme.h"
#include "shell/views/pages.h"
#include "shell/welcome_screen.h"
#include "shell/woman_dialog.h"
#include "store/profiles.h"

namespace lad::shell {

namespace {

constexpr double kTabletShortSide = 600;  // CSS pixels
constexpr double kLargestViewport = 100000;
constexpr int kProfileSettingsRow = 22;
constexpr int kNewProfileRow = 31;
constexpr int kBackgroundRow = 42;
constexpr int kPasswordSwitch = 52;
constexpr int kReminderFeedRow = 57;
constexpr int kReportRow = 21;
constexpr int kBookRow = 23;
constexpr int kCloudRow = 38;
constexpr int kHospitalListsRow = 33;

bool isNumber(const Value& v) {
  return v.type() == Value::Type::Integer || v.type() == Value::Type::Double;
}

bool isShortcut(const std::string& name) {
  return name == "SCHVATKI" || name == "NEWNOTE";
}

constexpr std::string_view kToMenu = "ring:menu";

// A command whose whole effect is a screen shown over the present one.
std::function<EventResult()> showing(std::function<void()> show) {
  return [show = std::move(show)] {
    show();
    return EventResult();
  };
}

}  // namespace

Session::Session(Application& app)
    : app_(app),
      menu_(app.context(), app.store()),
      ring_(PageRing::pagesOf(app.context().values().tabMenu,
                              builtPages(app.context().values().appid))),
      fingerprint_(app.context()) {
  menu_.onOpenPage([this](int page) { return openTab(page); });
  menu_.onMessage([this](MessageBox message) { showMessage(std::move(message)); });
  addMenuCommands();
  if (passwordOn(app.context().settings())) showLock(LockMode::Check);
}

// The menu rows whose screens the session shows: the settings of a pregnancy, a child or the
// woman.
void Session::addMenuCommands() {
  const int appid = app_.context().values().appid;
  if (isPregnancyEdition(appid) || isChildEdition(appid)) {
    menu_.onCommand(kProfileSettingsRow, showing([this] { showProfile(menu_.activeId()); }));
    menu_.onCommand(kNewProfileRow, showing([this] { showProfile(std::nullopt); }));
  }
  if (isCycleEdition(appid))
    menu_.onCommand(kProfileSettingsRow, showing([this] {
                      push(std::make_shared<ProfileEditor>(
                          app_, *this, std::make_unique<WomanDialog>(app_, profileId())));
                    }));
  menu_.onCommand(kBackgroundRow, showing([this] { showBackgrounds(); }));
  menu_.onCommand(kReminderFeedRow,
                  showing([this] { push(std::make_shared<ReminderFeedScreen>(app_, *this)); }));
  menu_.onCommand(kReportRow, [this] { return reports_.ask(profileId()); });
  if (!isCycleEdition(appid))
    menu_.onCommand(
        kBookRow, showing([this] { push(std::make_shared<BookKinds>(app_, *this, profileId())); }));
  menu_.onCommand(kHospitalListsRow, showing([this] { push(hospitalListsPage(app_, *this)); }));
  menu_.onCommand(kCloudRow, showing([this] { push(std::make_shared<CloudScreen>(app_, *this)); }));
  menu_.onCommand(kPasswordSwitch, [this] { return togglePassword(); });
}

// The greeting's "Настройки" opens the first pregnancy's settings.
void Session::showGreeting(Greeting greeting) {
  WelcomeScreen::Commands commands;
  if (isPregnancyEdition(app_.context().values().appid))
    commands[kSetup] = showing([this] { showProfile(newID2(1, 1)); });
  push(std::make_shared<WelcomeScreen>(app_.context(), greeting, std::move(commands)));
}

void Session::showBackgrounds() {
  push(std::make_shared<BackgroundList>(app_.context()));
}

void Session::showProfile(std::optional<std::string> gid) {
  if (isChildEdition(app_.context().values().appid))
    push(std::make_shared<ProfileEditor>(app_, *this,
                                         std::make_unique<ChildDialog>(app_, std::move(gid))));
  else
    push(std::make_shared<ProfileEditor>(app_, *this, std::move(gid)));
}

void Session::push(std::shared_ptr<Screen> screen) {
  stack_.push_back(std::move(screen));
}

void Session::showMessage(MessageBox message) {
  message_ = std::move(message);
}

void Session::showReminder(const std::string& text) {
  const MessageBox reminder = MessageBox::make(app_.context(), text, "Напоминание");
  if (message_ && message_->caption == reminder.caption)
    message_->text += "\n" + reminder.text;
  else
    message_ = reminder;
}

// Screens that closed themselves go, from the top down.
void Session::popClosed() {
  while (!stack_.empty() && stack_.back()->closed()) stack_.pop_back();
}

void Session::showLock(LockMode mode) {
  lock_.emplace(app_.context(), app_.lockThrottle(), fingerprint_, mode);
}

void Session::askNewPassword() {
  showLock(LockMode::New);
}

Value Session::view() {
  if (locked()) return withBackground(lock_->view());
  if (!appeared_) {
    appeared_ = true;
    if (auto greeting = app_.takeVersionRecord()) showGreeting(*greeting);
  }
  if (page_ && pagesVersion_ != app_.dataVersion()) reopenPages();
  popClosed();  // a screen may close by itself, as the book when another browser ends it
  Value screen = lock_             ? lock_->view()
                 : !stack_.empty() ? stack_.back()->view()
                 : page_           ? ringView()
                                   : menu_.view();
  if (reports_.shown()) screen.asMap()->set("report", reports_.view());
  if (popup_) screen.asMap()->set("popup", popup_->view());
  if (message_) screen.asMap()->set("message", message_->toValue());
  if (Value enrol = fingerprint_.registration(); !enrol.isNull())
    screen.asMap()->set("fingerprintRegister", std::move(enrol));
  // The browser sends tilt samples only while they can move a page.
  screen.asMap()->set("tilt",
                      atRoot() && !app_.context().values().accStop && !menu_.activeId().empty());
  return withBackground(std::move(screen));
}

EventResult Session::dispatch(const Value& event) {
  if (!event.asMap()) return EventResult::refused("an event must be a JSON object");
  const std::string* type = event["type"].asText();
  if (!type) return EventResult::refused("an event needs a text \"type\"");
  if (*type == "viewport") return setViewport(event);
  if (*type == "visible") return becomeVisible();
  if (*type == "hidden") {
    app_.resignActive();
    return {};
  }
  if (*type == "shortcut") return setShortcut(event);
  if (*type == "drag") return drag(event);
  if (*type == "tilt") return tilt(event);
  if (*type == "authenticator" || *type == "fingerprint" || *type == "fingerprintRegister")
    return fingerprintEvent(event);
  if (*type == "tap") {
    const std::string* target = event["target"].asText();
    if (!target) return EventResult::refused("a tap needs a text \"target\"");
    EventResult result = tap(*target, event["value"]);
    popClosed();
    return result;
  }
  if (*type == "change") return change(event);
  return EventResult::refused("unknown event type \"" + *type + "\"");
}

EventResult Session::handle(const Value& event) {
  EventResult result = dispatch(event);
  if (result.installationChanged) app_.dataChanged();
  return result;
}

// Only the screen on top takes taps; a tap meant for a screen below it is stale.
EventResult Session::tap(std::string_view target, const Value& value) {
  if (lock_) return tapLock(target);
  if (message_) {
    if (target != kMessageClose) return EventResult::refused("a message is open");
    message_.reset();
    return {};
  }
  if (popup_) return answerPopup(target, value);
  if (reports_.shown()) {
    if (target != kReportClose) return EventResult::refused("the report's panel is open");
    return reports_.close();
  }
  if (!stack_.empty()) return stack_.back()->tap(target);
  if (page_) return tapPage(target);
  return menu_.tap(target);
}

// A changed input of the screen on top.
EventResult Session::change(const Value& event) {
  const std::string* target = event["target"].asText();
  if (!target) return EventResult::refused("a change needs a text \"target\"");
  if (lock_ || message_ || popup_)
    return EventResult::refused("the screen with " + *target + " is covered");
  if (!stack_.empty()) return stack_.back()->change(*target, event["value"]);
  if (page_) return page_->change(*target, event["value"]);
  return EventResult::refused("the menu has no input " + *target);
}

// The page's own controls, and the way back to the menu; a page may also close itself.
EventResult Session::tapPage(std::string_view target) {
  if (target == kToMenu) {
    gotoMenu();
    return {};
  }
  EventResult result = page_->tap(target);
  if (page_->closed()) gotoMenu();
  return result;
}

// Turning the password on asks for the new code; turning it off is stored at once.
EventResult Session::togglePassword() {
  SettingsStore& settings = app_.context().settings();
  if (!settings.boolForKey("pass")) {
    askNewPassword();
    return {};
  }
  turnPasswordOff(settings);
  menu_.updateMenu();
  EventResult result;
  result.installationChanged = true;
  return result;
}

Value Session::ringView() {
  return RingView{page_->view(), next_ ? next_->view() : Value(), menu_.view(),
                  std::string(kToMenu)}
      .toValue();
}

// The profile the pages show: the open card. With every card closed the child's shortcut goes
// to the first child; the woman's diary has no cards, so hers is the first profile, or her
// fixed one.
std::string Session::profileId() {
  if (!menu_.activeId().empty() || isPregnancyEdition(app_.context().values().appid))
    return menu_.activeId();
  const List profiles = loadProfils(app_.store());
  return profiles.empty() ? newID2(1, 1) : profiles.front()["guid"].text();
}

std::shared_ptr<Screen> Session::pageScreen(int page, bool fromMenu) {
  return makePage(page, {app_, *this, profileId(), metrics_.scaleX, diary_, fromMenu});
}

EventResult Session::openTab(int page, bool fromMenu) {
  auto screen = pageScreen(page, fromMenu);
  if (!screen || !ring_.open(page)) return EventResult::refused("no page " + std::to_string(page));
  page_ = std::move(screen);
  // The page behind is prepared once, as the front one comes; it is rebuilt when it comes next.
  const auto back = ring_.back();
  next_ = back && *back != page ? pageScreen(*back, true) : nullptr;
  pagesVersion_ = app_.dataVersion();
  return {};
}

// The data changed since the pages were built, here or in another browser. What a page keeps
// of the user's work in progress lives with the installation, so a page built again loses
// nothing.
void Session::reopenPages() {
  if (auto front = ring_.front()) openTab(*front, false);
}

void Session::gotoNextPage() {
  ring_.gotoNextPage();
  if (auto front = ring_.front()) openTab(*front);
}

void Session::gotoMenu() {
  ring_.gotoMenu();
  page_.reset();
  next_.reset();
  menu_.updateMenu();
}

EventResult Session::drag(const Value& event) {
  const Value& offset = event["offset"];
  const Value& width = event["width"];
  if (!isNumber(offset) || !isNumber(width))
    return EventResult::refused("a drag needs numeric \"offset\" and \"width\"");
  if (!page_ || !atRoot()) return EventResult::refused("no page is in front");
  switch (dragEnded(offset.doubleValue(), width.doubleValue())) {
    case DragOutcome::kMenu:
      gotoMenu();
      break;
    case DragOutcome::kNextPage:
      gotoNextPage();
      break;
    case DragOutcome::kBack:
      break;
  }
  return {};
}

// Samples are dropped while something covers the pages or tilting is switched off.
EventResult Session::tilt(const Value& event) {
  const Value& x = event["x"];
  if (!isNumber(x)) return EventResult::refused("a tilt needs a numeric \"x\"");
  if (!atRoot() || app_.context().values().accStop) return {};
  const bool upsideDown = event["upsideDown"].boolValue();
  switch (tilt_.sample(x.doubleValue(), upsideDown, !menu_.activeId().empty())) {
    case TiltNavigator::Move::kMenu:
      if (page_) gotoMenu();
      break;
    case TiltNavigator::Move::kNextPage:
      gotoNextPage();
      break;
    case TiltNavigator::Move::kNone:
      break;
  }
  return {};
}

// Every screen lies on the chosen background; the lock on its darker form.
Value Session::withBackground(Value screen) const {
  const ProcessValues& values = app_.context().values();
  Map theme;
  theme.set("picture", backgroundPicture(values.backgroundId, lock_.has_value()));
  theme.set("darkHeader", values.themeDarkHeader);
  theme.set("caption", values.themeCaptionColour);
  theme.set("text", values.themeTextColour);
  theme.set("accent", values.themeAccentColour);
  screen.asMap()->set("theme", Value(std::move(theme)));
  return screen;
}

EventResult Session::tapLock(std::string_view target) {
  return afterLock(lock_->tap(target));
}

// The lock's own answer goes to it; the reader takes the rest.
EventResult Session::fingerprintEvent(const Value& event) {
  if (event["type"].text() != "fingerprint") return fingerprint_.handle(event);
  if (!locked()) return EventResult::refused("no lock is waiting for the fingerprint");
  return afterLock(lock_->fingerprint(event));
}

EventResult Session::afterLock(EventResult result) {
  if (lock_->closed()) {
    if (lock_->outcome()) showMessage(*lock_->outcome());
    lock_.reset();
    menu_.updateMenu();
  }
  return result;
}

void Session::openPopup(std::unique_ptr<Popup> popup, PopupAction action) {
  popup_ = std::move(popup);
  popupAction_ = std::move(action);
}

// The popup closes before its action runs, so that the action may open the next one.
EventResult Session::answerPopup(std::string_view target, const Value& value) {
  const auto answer = popup_->answer(target, value);
  if (!answer) return EventResult::refused("a popup is open and takes no such answer");
  popup_.reset();
  const PopupAction action = std::move(popupAction_);
  popupAction_ = nullptr;
  return action ? action(*answer) : EventResult();
}

EventResult Session::setViewport(const Value& event) {
  const Value& w = event["width"];
  const Value& h = event["height"];
  if (!isNumber(w) || !isNumber(h))
    return EventResult::refused("a viewport needs numeric \"width\" and \"height\"");
  const double width = w.doubleValue(), height = h.doubleValue();
  if (!(width > 0 && height > 0 && width < kLargestViewport && height < kLargestViewport))
    return EventResult::refused("a viewport needs a positive width and height");
  const double shortSide = std::min(width, height), longSide = std::max(width, height);
  metrics_ = {shortSide >= kTabletShortSide, shortSide / 320.0, longSide / 480.0};
  return {};
}

// A shortcut waits for the next activation, which runs it.
EventResult Session::setShortcut(const Value& event) {
  const std::string* name = event["name"].asText();
  if (!name || !isShortcut(*name))
    return EventResult::refused("a shortcut needs a \"name\": SCHVATKI or NEWNOTE");
  pendingShortcut_ = *name;
  return {};
}

EventResult Session::becomeVisible() {
  if (!pendingShortcut_.empty() && atRoot()) quickStart();
  pendingShortcut_.clear();
  lockDue_ = app_.becomeActive().lockDue;
  if (lockDue_ && passwordOn(app_.context().settings()) && !locked()) showLock(LockMode::Check);
  menu_.updateMenu();
  return {};
}

bool Session::atRoot() const {
  return !lock_ && stack_.empty() && !message_ && !popup_;
}

// In the pregnancy editions both shortcuts act on the active pregnancy: the contraction counter
// opens, or today's day of the diary. The other editions offer the new note only.
void Session::quickStart() {
  Context& context = app_.context();
  if (isPregnancyEdition(context.values().appid)) {
    auto active = getActivePregnancy(app_.store(), context.clock().now());
    if (!active) {
      showMessage(
          MessageBox::make(context, "Активная беременность не найдена", "Активная беременность"));
      return;
    }
    menu_.setActiveId(*active);
  }
  if (pendingShortcut_ == "SCHVATKI")
    openTab(kContractionsPage);
  else
    push(std::make_shared<DayEditor>(app_, *this, profileId(), context.clock().now()));
}

}  // namespace lad::shell
