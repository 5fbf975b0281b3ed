#include "shell/views/schedule.h"

#include "shell/views/node.h"

namespace lad::shell {

Value ScheduleEntryView::toValue() const {
  Map m;
  m.set("kind", kind);
  m.set("text", text);
  return m;
}

Value ScheduleRowView::toValue() const {
  Map m;
  m.set("style", style);
  m.set("right", right);
  m.set("entries", valuesOf(entries));
  return m;
}

Value ScheduleView::toValue() const {
  Map m = node(kKind);
  m.set("day", day.toValue());
  m.set("meals", meals.toValue());
  m.set("rows", valuesOf(rows));
  return m;
}

}  // namespace lad::shell
