#include "shell/help_hint.h"

namespace lad::shell {

std::optional<Value> HelpHint::view() const {
  if (!due()) return std::nullopt;
  Map m;
  m.set("kind", "helpHint");
  m.set("icon", "help-icon2.png");
  m.set("hand", "hand.png");
  m.set("id", target());
  return Value(std::move(m));
}

bool HelpHint::tap(std::string_view target) {
  if (target != this->target()) return false;
  settings_.helpFinish(key_);
  return true;
}

}  // namespace lad::shell
