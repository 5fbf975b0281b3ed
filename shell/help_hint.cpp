#include "shell/help_hint.h"

#include "shell/views/popups.h"

namespace lad::shell {

std::optional<Value> HelpHint::view() const {
  if (!due()) return std::nullopt;
  return HelpHintView{"help-icon2.png", "hand.png", target()}.toValue();
}

bool HelpHint::tap(std::string_view target) {
  if (target != this->target()) return false;
  settings_.helpFinish(key_);
  return true;
}

}  // namespace lad::shell
