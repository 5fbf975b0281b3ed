#include "shell/session.h"

#include <algorithm>

#include "store/profiles.h"

namespace lad::shell {

namespace {

constexpr double kTabletShortSide = 600;  // CSS pixels
constexpr double kLargestViewport = 100000;

bool isNumber(const Value& v) {
  return v.type() == Value::Type::Integer || v.type() == Value::Type::Double;
}

bool isShortcut(const std::string& name) {
  return name == "SCHVATKI" || name == "NEWNOTE";
}

}  // namespace

Value Session::view() {
  if (!appeared_) {
    appeared_ = true;
    if (auto greeting = app_.takeVersionRecord()) welcome_.emplace(app_.context(), *greeting);
  }
  Value screen = welcome_ ? welcome_->view() : contractions_ ? contractions_->view() : menu_.view();
  if (message_) screen.asMap()->set("message", message_->toValue());
  return screen;
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
  if (contractions_) {
    EventResult result = contractions_->tap(target);
    if (contractions_->closed()) contractions_.reset();
    return result;
  }
  return menu_.tap(target);
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
  menu_.updateMenu();
  return {};
}

bool Session::atRoot() const {
  return !welcome_ && !message_ && !contractions_ && app_.context().values().modalOpen == 0;
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
  if (pendingShortcut_ == "SCHVATKI")
    contractions_ = ContractionScreen::open(app_, activeId_, metrics_.scaleX);
}

}  // namespace lad::shell
