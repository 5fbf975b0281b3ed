// A popup menu from its text: items separated by "<tr>", an item's caption and icon by "<td>".
// An item whose "<td>" has nothing behind it is a gap between groups of items. "Отменить" is
// added at the end, so the action always gets a caption, and must test for it first.
#pragma once

#include <string>
#include <vector>

#include "core/context.h"
#include "shell/popup.h"

namespace lad::shell {

struct PopupMenuItem {
  std::string caption;  // translated
  std::string icon;
  bool gap = false;
};

class PopupMenu : public Popup {
 public:
  PopupMenu(const Context& context, std::string_view menuText);

  // The items in order, the closing "Отменить" included.
  const std::vector<PopupMenuItem>& items() const { return items_; }

  Value view() const override;
  std::optional<PopupAnswer> answer(std::string_view target, const Value& input) const override;

 private:
  std::vector<PopupMenuItem> items_;
};

}  // namespace lad::shell
