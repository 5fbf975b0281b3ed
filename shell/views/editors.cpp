#include "shell/views/editors.h"

#include "shell/views/node.h"

namespace lad::shell {

Value EditorRowView::toValue() const {
  Map m;
  m.set("tp", tp);
  if (!id.empty()) m.set("id", id);
  m.set("caption", caption);
  if (!field.empty()) m.set("field", field);
  m.set("source", source);
  m.set("required", required);
  if (!editcap.empty()) m.set("editcap", editcap);
  if (!pic.empty()) m.set("pic", pic);
  if (!preview.empty()) m.set("preview", preview);
  if (!shown.empty()) m.set("shown", shown);
  if (!scalemin.empty()) m.set("scalemin", scalemin);
  if (!scalemax.empty()) m.set("scalemax", scalemax);
  if (scaletype) m.set("scaletype", *scaletype);
  if (listtype) m.set("listtype", *listtype);
  if (!listdata.isNull()) m.set("listdata", listdata);
  return m;
}

Value EditorView::toValue() const {
  Map m = node(kKind);
  m.set("caption", caption);
  List list;
  for (const EditorRowView& row : rows) list.push_back(row.toValue());
  m.set("rows", Value(std::move(list)));
  m.set("ok", ok.toValue());
  m.set("cancel", cancel.toValue());
  return m;
}

}  // namespace lad::shell
