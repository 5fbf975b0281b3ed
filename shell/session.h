// What one browser sees of the installation: its screen and its screen size. Data and
// settings belong to the installation and are shared by all sessions.
#pragma once

#include "core/context.h"
#include "shell/main_menu.h"

namespace lad::shell {

struct ScreenMetrics {
  bool isTablet = false;
  double scaleX = 1.0;  // portrait width / 320
  double scaleY = 1.0;  // portrait height / 480
};

class Session {
 public:
  explicit Session(Context& context) : menu_(context) {}

  Value view() { return menu_.view(); }
  // Takes one event from the browser: {"type": "tap", "target": id} or
  // {"type": "viewport", "width": w, "height": h}.
  EventResult handle(const Value& event);

  const ScreenMetrics& metrics() const { return metrics_; }

 private:
  EventResult setViewport(const Value& event);

  MainMenu menu_;
  ScreenMetrics metrics_;
};

}  // namespace lad::shell
