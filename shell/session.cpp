#include "shell/session.h"

#include <algorithm>

#include "shell/theme.h"
#include "store/profiles.h"

namespace lad::shell {

namespace {

constexpr double kTabletShortSide = 600;  // CSS pixels
constexpr double kLargestViewport = 100000;
constexpr int kPasswordSwitch = 52;
constexpr int kBackgroundRow = 42;

bool isNumber(const Value& v) {
  return v.type() == Value::Type::Integer || v.type() == Value::Type::Double;
}

bool isShortcut(const std::string& name) {
  return name == "SCHVATKI" || name == "NEWNOTE";
}

}  // namespace

Session::Session(Application& app) : app_(app), menu_(app.context()) {
  if (passwordOn(app.context().settings())) showLock(LockMode::Check);
}

void Session::showLock(LockMode mode) {
  lock_.emplace(app_.context(), app_.lockThrottle(), mode);
}

void Session::askNewPassword() {
  showLock(LockMode::New);
}

Value Session::view() {
  if (locked()) return withBackground(lock_->view());
  if (!appeared_) {
    appeared_ = true;
    if (auto greeting = app_.takeVersionRecord()) welcome_.emplace(app_.context(), *greeting);
  }
  Value screen = lock_          ? lock_->view()
                 : welcome_     ? welcome_->view()
                 : backgrounds_ ? backgrounds_->view()
                                : menu_.view();
  if (message_) screen.asMap()->set("message", message_->toValue());
  return withBackground(std::move(screen));
}

EventResult Session::handle(const Value& event) {
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
  if (*type == "tap") {
    const std::string* target = event["target"].asText();
    if (!target) return EventResult::refused("a tap needs a text \"target\"");
    return tap(*target);
  }
  return EventResult::refused("unknown event type \"" + *type + "\"");
}

// Only the screen on top takes taps; a tap meant for a screen below it is stale.
EventResult Session::tap(std::string_view target) {
  if (lock_) return tapLock(target);
  if (message_) {
    if (target != kMessageClose) return EventResult::refused("a message is open");
    message_.reset();
    return {};
  }
  if (welcome_) {
    EventResult result = welcome_->tap(target);
    if (welcome_->closed()) welcome_.reset();
    return result;
  }
  if (backgrounds_) {
    EventResult result = backgrounds_->tap(target);
    if (backgrounds_->closed()) backgrounds_.reset();
    return result;
  }
  return tapMenu(target);
}

// The password switch and the background row open their screens; the rest is the menu's.
EventResult Session::tapMenu(std::string_view target) {
  if (target == menuTarget(kPasswordSwitch)) {
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
  if (target == menuTarget(kBackgroundRow)) {
    showBackgrounds();
    return {};
  }
  return menu_.tap(target);
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
  EventResult result = lock_->tap(target);
  if (lock_->closed()) {
    if (lock_->outcome()) message_ = lock_->outcome();
    lock_.reset();
    menu_.updateMenu();
  }
  return result;
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
  return !welcome_ && !message_ && app_.context().values().modalOpen == 0;
}

// Both shortcuts act on the active pregnancy. The pages they open join the page ring as they
// are built; until then the shortcut chooses the pregnancy and the menu stays.
void Session::quickStart() {
  Context& context = app_.context();
  auto active = getActivePregnancy(app_.store(), context.clock().now());
  if (!active) {
    message_ =
        MessageBox::make(context, "Активная беременность не найдена", "Активная беременность");
    return;
  }
  activeId_ = *active;
}

}  // namespace lad::shell
