#include "shell/views/week.h"

#include "shell/views/node.h"

namespace lad::shell {

Value FactView::toValue() const {
  Map m;
  m.set("caption", caption);
  m.set("value", value);
  return m;
}

Value FactsView::toValue() const {
  Map m = node(kKind);
  m.set("facts", valuesOf(facts));
  return m;
}

Value MovieView::toValue() const {
  Map m = node(kKind);
  List list;
  for (const auto& f : frames) list.push_back(f);
  m.set("frames", std::move(list));
  m.set("intervalMs", intervalMs);
  return m;
}

Value ScreensView::toValue() const {
  Map m = node(kKind);
  List list;
  for (const auto& children : screens) {
    Map screen;
    screen.set("children", children);
    list.push_back(std::move(screen));
  }
  m.set("screens", std::move(list));
  return m;
}

Value HintView::toValue() const {
  Map m;
  m.set("name", name);
  m.set("x", x);
  m.set("y", y);
  return m;
}

Value HintPictureView::toValue() const {
  Map m = node(kKind);
  m.set("picture", picture);
  m.set("width", width);
  m.set("height", height);
  m.set("hints", valuesOf(hints));
  return m;
}

Value ContentRowView::toValue() const {
  Map m;
  m.set("tp", tp);
  m.set("text", text);
  if (!pic.empty()) m.set("pic", pic);
  m.set("group", group);
  m.set("alpha", alpha);
  if (tick >= 0) {
    m.set("tick", tick);
    m.set("target", target);
  }
  if (!link.empty()) m.set("link", link);
  if (button) m.set("button", true);
  return m;
}

Value ContentView::toValue() const {
  Map m = node(kKind);
  m.set("id", id);
  m.set("rows", valuesOf(rows));
  m.set("highlight", highlight);
  return m;
}

}  // namespace lad::shell
