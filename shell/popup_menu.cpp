#include "shell/popup_menu.h"

#include "core/text_parts.h"
#include "shell/views/popups.h"

namespace lad::shell {

namespace {

PopupMenuItem readItem(const Context& context, std::string_view text) {
  const auto fields = splitOn(text, "<td>");
  PopupMenuItem item{context.translate(fields[0]), "", false};
  if (fields.size() > 1) {
    item.icon = std::string(fields[1]);
    item.gap = item.icon.empty();
  }
  if (item.gap) item.caption.clear();
  return item;
}

}  // namespace

PopupMenu::PopupMenu(const Context& context, std::string_view menuText) {
  if (!menuText.empty())
    for (auto part : splitOn(menuText, "<tr>")) items_.push_back(readItem(context, part));
  items_.push_back({context.translate("Отменить"), "", false});
}

Value PopupMenu::view() const {
  PopupMenuView view;
  for (std::size_t i = 0; i < items_.size(); ++i)
    view.items.push_back(
        {popupTarget(static_cast<int>(i)), items_[i].caption, items_[i].icon, items_[i].gap});
  return view.toValue();
}

std::optional<PopupAnswer> PopupMenu::answer(std::string_view target, const Value&) const {
  const int n = popupIndex(target);
  if (n < 0 || n >= static_cast<int>(items_.size()) || items_[n].gap) return std::nullopt;
  return PopupAnswer{n, items_[n].caption, Value()};
}

}  // namespace lad::shell
