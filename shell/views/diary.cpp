#include "shell/views/diary.h"

#include "shell/views/node.h"

namespace lad::shell {

Value DayLineView::toValue() const {
  Map m;
  m.set("time", time);
  m.set("text", text);
  if (!id.empty()) m.set("id", id);
  return m;
}

Value DayRowView::toValue() const {
  Map m;
  if (!id.empty()) m.set("id", id);
  m.set("icon", icon);
  m.set("caption", caption);
  m.set("text", text);
  m.set("lines", valuesOf(lines));
  m.set("enabled", enabled);
  if (number) m.set("number", *number);
  return m;
}

Value DiarySectionView::toValue() const {
  Map m = node(kKind);
  m.set("caption", caption);
  m.set("span", span);
  return m;
}

Value DayCellView::toValue() const {
  Map m = node(kKind);
  m.set("id", id);
  m.set("day", day);
  m.set("weekday", weekday);
  m.set("state", state);
  if (cycle) m.set("cycle", cycle->toValue());
  m.set("today", today);
  m.set("illness", illness);
  m.set("rows", valuesOf(rows));
  m.set("photo", photo);
  m.set("deleteTarget", deleteTarget);
  m.set("deleteCaption", deleteCaption);
  return m;
}

Value DiaryView::toValue() const {
  Map m = node(kKind);
  m.set("title", title);
  m.set("add", add);
  m.set("search", search);
  m.set("searchTarget", searchTarget);
  m.set("searchHint", searchHint);
  if (year) m.set("year", year->toValue());
  m.set("message", message);
  m.set("items", items);
  m.set("earlier", earlier);
  m.set("more", more);
  m.set("scrollTo", scrollTo);
  return m;
}

Value DayPhotoView::toValue() const {
  Map m;
  m.set("caption", caption);
  m.set("picture", picture);
  m.set("change", change);
  m.set("camera", camera.toValue());
  m.set("album", album.toValue());
  m.set("clear", clear.toValue());
  return m;
}

Value DayEditorView::toValue() const {
  Map m = node(kKind);
  m.set("title", title);
  m.set("close", close.toValue());
  m.set("prev", prev.toValue());
  m.set("next", next.toValue());
  m.set("date", date.toValue());
  m.set("rows", valuesOf(rows));
  m.set("photo", photo.toValue());
  return m;
}

}  // namespace lad::shell
