#include "shell/views/pages.h"

#include <utility>

#include "shell/views/node.h"

namespace lad::shell {

Value PageView::toValue() && {
  Map m = node(kKind);
  m.set("title", std::move(title));
  m.set("children", std::move(children));
  return m;
}

Value RingView::toValue() && {
  Map m = node(kKind);
  m.set("page", std::move(page));
  if (!next.isNull()) m.set("next", std::move(next));
  m.set("menu", std::move(menu));
  m.set("toMenu", std::move(toMenu));
  return m;
}

Value ButtonView::toValue() const {
  Map m;
  m.set("id", id);
  m.set("caption", caption);
  if (enabled) m.set("enabled", *enabled);
  return m;
}

Value YearView::toValue() const {
  Map m;
  m.set("caption", caption);
  m.set("back", back.toValue());
  m.set("forward", forward.toValue());
  return m;
}

Value ButtonsView::toValue() const {
  Map m = node(kKind);
  List list;
  for (const ButtonView& b : buttons) list.push_back(b.toValue());
  m.set("buttons", Value(std::move(list)));
  return m;
}

Value TimerView::toValue() const {
  Map m = node(kKind);
  m.set("text", text);
  m.set("running", running);
  m.set("visible", visible);
  return m;
}

Value WelcomeView::toValue() const {
  Map m = node(kKind);
  m.set("icon", icon);
  m.set("caption", caption);
  m.set("accent", accent);
  m.set("children", children);
  m.set("close", close.toValue());
  return m;
}

Value LockView::toValue() const {
  Map m = node(kKind);
  m.set("caption", caption);
  if (!captionColor.empty()) m.set("captionColor", captionColor);
  m.set("dots", Value(List(dots.begin(), dots.end())));
  m.set("key", key);
  m.set("deleteKey", deleteKey);
  m.set("deleteId", deleteId);
  m.set("digitPrefix", digitPrefix);
  m.set("wait", wait);
  if (!fingerprint.isNull()) m.set("fingerprint", fingerprint);
  return m;
}

}  // namespace lad::shell
