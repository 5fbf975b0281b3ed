#include "shell/views/cycle.h"

#include "shell/views/node.h"

namespace lad::shell {

Value CycleMarkView::toValue() const {
  Map m;
  m.set("phase", phase);
  m.set("open", open);
  m.set("caption", caption);
  m.set("target", target);
  return m;
}

Value CycleDayView::toValue() const {
  Map m;
  m.set("day", day);
  m.set("phase", phase);
  m.set("open", open);
  m.set("marked", marked);
  m.set("cycleDay", cycleDay);
  m.set("today", today);
  m.set("target", target);
  return m;
}

Value CycleMonthView::toValue() const {
  Map m;
  m.set("name", name);
  m.set("offset", offset);
  m.set("days", valuesOf(days));
  return m;
}

Value CycleLegendView::toValue() const {
  Map m;
  m.set("phase", phase);
  m.set("open", open);
  m.set("caption", caption);
  return m;
}

Value CycleCalendarView::toValue() const {
  Map m = node(kKind);
  m.set("title", title);
  m.set("year", year.toValue());
  m.set("summary", summary);
  m.set("empty", empty);
  List names;
  for (const std::string& w : weekdays) names.push_back(Value(w));
  m.set("weekdays", std::move(names));
  m.set("months", valuesOf(months));
  m.set("legend", valuesOf(legend));
  m.set("note", note);
  if (close) m.set("close", close->toValue());
  return m;
}

}  // namespace lad::shell
