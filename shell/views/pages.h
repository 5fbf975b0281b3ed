// The nodes that fill the screen: pages, the ring of pages over the menu, the greeting, the
// buttons and running timer on pages, and the lock.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/value.h"

namespace lad::shell {

struct PageView {
  static constexpr std::string_view kKind = "page";
  std::string title;
  List children;

  // Made once from a temporary: the children move into the node.
  Value toValue() &&;
};

// A page of the ring in front of the menu, the page waiting behind it, and the menu.
struct RingView {
  static constexpr std::string_view kKind = "ring";
  Value page;
  Value next;  // null: none
  Value menu;
  std::string toMenu;  // the tap that slides the page aside

  // Made once from a temporary: the three screens move into the node.
  Value toValue() &&;
};

// A button of a row of buttons or of the greeting; not a node of its own.
struct ButtonView {
  std::string id;
  std::string caption;
  std::optional<bool> enabled;

  Value toValue() const;
};

// A year chosen with the buttons on either side of its caption.
struct YearView {
  std::string caption;
  ButtonView back;
  ButtonView forward;

  Value toValue() const;
};

// Buttons side by side, sharing the width.
struct ButtonsView {
  static constexpr std::string_view kKind = "buttons";
  std::vector<ButtonView> buttons;

  Value toValue() const;
};

// The running time of something being timed.
struct TimerView {
  static constexpr std::string_view kKind = "timer";
  std::string text;
  bool running = false;
  bool visible = false;

  Value toValue() const;
};

// The greeting that covers the whole screen once per version.
struct WelcomeView {
  static constexpr std::string_view kKind = "welcome";
  std::string icon;
  std::string caption;
  std::string accent;  // names the edition's colour of the buttons
  List children;
  ButtonView close;

  Value toValue() const;
};

// The four-digit lock: a caption, four dots and a digit pad.
struct LockView {
  static constexpr std::string_view kKind = "lock";
  std::string caption;
  std::string captionColor;  // set while the caption warns of a wrong code
  std::vector<std::string> dots;
  std::string key;
  std::string deleteKey;
  std::string deleteId;
  std::string digitPrefix;
  std::int64_t wait = 0;  // seconds before the pad takes keys again
  Value fingerprint;      // the reader's key when offered, else null

  Value toValue() const;
};

}  // namespace lad::shell
