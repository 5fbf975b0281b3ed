#include "shell/views/book.h"

#include "shell/views/node.h"

namespace lad::shell {

Value BookPageView::toValue() const {
  Map m;
  m.set("id", id);
  m.set("label", label);
  m.set("picture", picture);
  if (!deleteId.empty()) m.set("deleteId", deleteId);
  if (!editId.empty()) m.set("editId", editId);
  return m;
}

Value BookLargeView::toValue() const {
  Map m;
  m.set("label", label);
  m.set("picture", picture);
  m.set("close", close.toValue());
  return m;
}

Value BookPhotoView::toValue() const {
  Map m;
  m.set("id", id);
  m.set("picture", picture);
  m.set("use", use);
  if (!earlier.empty()) m.set("earlier", earlier);
  return m;
}

Value BookLayoutView::toValue() const {
  Map m;
  m.set("id", id);
  m.set("icon", icon);
  m.set("chosen", chosen);
  return m;
}

Value BookEditView::toValue() const {
  Map m;
  m.set("caption", caption);
  m.set("photos", valuesOf(photos));
  m.set("labelId", labelId);
  m.set("label", label);
  m.set("placeholder", placeholder);
  m.set("layoutsCaption", layoutsCaption);
  m.set("layouts", valuesOf(layouts));
  m.set("ok", ok.toValue());
  m.set("cancel", cancel.toValue());
  return m;
}

Value BookView::toValue() const {
  Map m = node(kKind);
  m.set("caption", caption);
  m.set("status", status);
  m.set("busy", busy);
  m.set("pages", valuesOf(pages));
  if (large) m.set("large", large->toValue());
  if (edit) m.set("edit", edit->toValue());
  m.set("addId", addId);
  m.set("addCaption", addCaption);
  m.set("save", save.toValue());
  m.set("close", close.toValue());
  return m;
}

}  // namespace lad::shell
