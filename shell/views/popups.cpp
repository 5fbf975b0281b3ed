#include "shell/views/popups.h"

#include "shell/views/node.h"

namespace lad::shell {

namespace {

Value buttonList(const std::vector<PopupButtonView>& buttons) {
  List list;
  for (const PopupButtonView& b : buttons) list.push_back(b.toValue());
  return Value(std::move(list));
}

}  // namespace

Value PopupButtonView::toValue() const {
  Map m;
  if (gap) {
    m.set("gap", true);
    return m;
  }
  m.set("id", id);
  if (!caption.empty()) m.set("caption", caption);
  if (!icon.empty()) m.set("icon", icon);
  return m;
}

Value QuestionView::toValue() const {
  Map m = node(kKind);
  m.set("caption", caption);
  m.set("text", text);
  if (hasInput) m.set("input", "");
  m.set("buttons", buttonList(buttons));
  return m;
}

Value PopupMenuView::toValue() const {
  Map m = node(kKind);
  m.set("items", buttonList(items));
  return m;
}

Value ListChoiceView::toValue() const {
  Map m = node(kKind);
  m.set("entries", buttonList(entries));
  m.set("buttons", buttonList(buttons));
  return m;
}

Value PickerView::toValue() const {
  Map m = node(kKind);
  m.set("caption", caption);
  List list;
  for (const WheelView& w : wheels) {
    Map wheel;
    wheel.set("rows", Value(List(w.rows.begin(), w.rows.end())));
    wheel.set("selected", w.selected);
    list.push_back(Value(std::move(wheel)));
  }
  m.set("wheels", Value(std::move(list)));
  m.set("buttons", buttonList(buttons));
  return m;
}

Value HelpHintView::toValue() const {
  Map m = node(kKind);
  m.set("icon", icon);
  m.set("hand", hand);
  m.set("id", id);
  return m;
}

}  // namespace lad::shell
