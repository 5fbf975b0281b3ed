#include "shell/views/rows.h"

#include "shell/views/node.h"

namespace lad::shell {

Value RowView::toValue() const {
  Map m = node(kKind);
  m.set("id", id);
  m.set("icon", icon);
  m.set("caption", caption);
  m.set("comment", comment);
  m.set("badge", badge);
  if (!badgeTarget.empty()) m.set("badgeTarget", badgeTarget);
  m.set("enabled", enabled);
  if (checked) m.set("checked", *checked);
  if (!deleteTarget.empty()) {
    m.set("deleteTarget", deleteTarget);
    m.set("deleteCaption", deleteCaption);
  }
  return m;
}

Value ListView::toValue() const {
  Map m = node(kKind);
  m.set("rows", rows);
  return m;
}

Value SectionView::toValue() const {
  Map m = node(kKind);
  m.set("caption", caption);
  return m;
}

Value TextView::toValue() const {
  Map m = node(kKind);
  m.set("text", text);
  if (!id.empty()) m.set("id", id);
  if (regim) m.set("regim", *regim);
  return m;
}

Value AddressView::toValue() const {
  Map m = node(kKind);
  m.set("path", path);
  m.set("copy", copy);
  m.set("subscribe", subscribe);
  return m;
}

}  // namespace lad::shell
