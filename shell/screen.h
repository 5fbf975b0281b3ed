// A screen controller: describes what the browser shows and takes the user's gestures.
#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <string_view>

#include "core/value.h"

namespace lad::shell {

struct EventResult {
  std::string error;  // non-empty: the event was refused, nothing changed
  // The installation's data or settings changed: other browsers must redraw.
  bool installationChanged = false;
  // Every browser redraws once more after this delay (zero: no later redraw).
  std::chrono::milliseconds redrawAfter{0};
  // Set: the host runs it on the main thread after timerDelay, treats its result as that of
  // an event, and redraws every browser.
  std::function<EventResult()> timer{};
  std::chrono::milliseconds timerDelay{0};

  bool ok() const { return error.empty(); }
  static EventResult refused(std::string why) { return {std::move(why)}; }
};

// Every browser redraws every `every` while the work goes on, and once more when `over` says it
// is over. The timer holds only what `over` captures, so it may outlive the screen that asked.
inline EventResult redrawUntil(std::function<bool()> over, std::chrono::milliseconds every) {
  EventResult result;
  if (over()) return result;
  result.timerDelay = every;
  result.timer = [over = std::move(over), every] { return redrawUntil(over, every); };
  return result;
}

class Screen {
 public:
  virtual ~Screen() = default;
  virtual Value view() = 0;
  virtual EventResult tap(std::string_view target) = 0;
  // The user changed the value of one of the screen's inputs.
  virtual EventResult change(std::string_view target, const Value&) {
    return EventResult::refused("this screen has no input " + std::string(target));
  }
  // The screen asked to be closed by one of its own controls.
  virtual bool closed() const { return false; }
};

}  // namespace lad::shell
