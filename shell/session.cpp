#include "shell/session.h"

#include <algorithm>

namespace lad::shell {

namespace {

constexpr double kTabletShortSide = 600;  // CSS pixels
constexpr double kLargestViewport = 100000;

bool isNumber(const Value& v) {
  return v.type() == Value::Type::Integer || v.type() == Value::Type::Double;
}

}  // namespace

EventResult Session::handle(const Value& event) {
  if (!event.asMap()) return EventResult::refused("an event must be a JSON object");
  const std::string* type = event["type"].asText();
  if (!type) return EventResult::refused("an event needs a text \"type\"");
  if (*type == "viewport") return setViewport(event);
  if (*type == "tap") {
    const std::string* target = event["target"].asText();
    if (!target) return EventResult::refused("a tap needs a text \"target\"");
    return menu_.tap(*target);
  }
  return EventResult::refused("unknown event type \"" + *type + "\"");
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

}  // namespace lad::shell
