// The nodes shown over the screen: questions, popup menus, list choices, pickers, and the
// first-use hint.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/value.h"

namespace lad::shell {

// A button or item of a popup: a caption, an icon, or both; a menu's gap has neither.
struct PopupButtonView {
  std::string id;
  std::string caption;
  std::string icon;
  bool gap = false;

  Value toValue() const;
};

struct QuestionView {
  static constexpr std::string_view kKind = "question";
  std::string caption;
  std::string text;
  bool hasInput = false;  // the question has a text field, starting empty
  std::vector<PopupButtonView> buttons;

  Value toValue() const;
};

struct PopupMenuView {
  static constexpr std::string_view kKind = "popupMenu";
  std::vector<PopupButtonView> items;

  Value toValue() const;
};

struct ListChoiceView {
  static constexpr std::string_view kKind = "listChoice";
  std::vector<PopupButtonView> entries;
  std::vector<PopupButtonView> buttons;

  Value toValue() const;
};

struct WheelView {
  std::vector<std::string> rows;
  int selected = 0;
};

// Wheels the server fills (a date, a time, units); the buttons close and confirm.
struct PickerView {
  static constexpr std::string_view kKind = "picker";
  std::string caption;
  std::vector<WheelView> wheels;
  std::vector<PopupButtonView> buttons;

  Value toValue() const;
};

// The first-use hint in a screen's header: its icon, the moving hand, the tap that ends it.
struct HelpHintView {
  static constexpr std::string_view kKind = "helpHint";
  std::string icon;
  std::string hand;
  std::string id;

  Value toValue() const;
};

}  // namespace lad::shell
