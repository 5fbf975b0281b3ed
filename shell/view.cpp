#include "shell/view.h"

namespace lad::shell {

Value RowView::toValue() const {
  Map m;
  m.set("kind", "row");
  m.set("id", id);
  m.set("icon", icon);
  m.set("caption", caption);
  m.set("comment", comment);
  m.set("badge", badge);
  m.set("enabled", enabled);
  if (checked) m.set("checked", *checked);
  return m;
}

Value pageView(const std::string& title, List children) {
  Map m;
  m.set("kind", "page");
  m.set("title", title);
  m.set("children", std::move(children));
  return m;
}

Value listView(List rows) {
  Map m;
  m.set("kind", "list");
  m.set("rows", std::move(rows));
  return m;
}

Value textView(const std::string& text) {
  Map m;
  m.set("kind", "text");
  m.set("text", text);
  return m;
}

}  // namespace lad::shell
