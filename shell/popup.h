// A small dialog over the current screen: it describes itself as a view node and turns the
// user's tap (with what was typed or picked) into the answer handed to the caller's action.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/value.h"

namespace lad::shell {

struct PopupAnswer {
  int button = 0;      // the index of the tapped button or item
  std::string choice;  // the caption of the tapped button or item, as the user read it
  Value value;         // what was typed or picked; null when nothing was
};

class Popup {
 public:
  virtual ~Popup() = default;
  virtual Value view() const = 0;
  // The answer to a tap on one of the popup's targets; nullopt for a target it does not own
  // or a value it cannot read, in which case the popup stays open.
  virtual std::optional<PopupAnswer> answer(std::string_view target, const Value& input) const = 0;
};

// The tap target of a popup's button or item n, and back; -1 for a foreign target.
std::string popupTarget(int n);
int popupIndex(std::string_view target);

}  // namespace lad::shell
