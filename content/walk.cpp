// The walks of both forms of text: which records make rows, and where groups begin and end.
#include "content/layout.h"
#include "content/row_builder.h"

namespace lad::content {

namespace {

// The open group's top in the plain form, before its first opening record.
constexpr double kFirstGroupTop = 5;

}  // namespace

// In the plain form a record of kind 1 opens a group and shows nothing. Records of the group
// being laid out keep the group open when a record behind the span arrives, so that the opening
// record of the first group behind the span closes the last group inside it.
TextLayout layoutPlain(const PlainText& text, const LayoutSettings& settings,
                       const GroupFilter& filter, const LayoutTools& tools) {
  RowBuilder b(settings, filter, tools);
  int layoutGroup = 0, spanGroup = 0;
  double top = kFirstGroupTop;
  for (const Record& r : text.records) {
    b.noteGroup(r.groupid);
    b.noteHidden(r);
    if (r.tp == 1) spanGroup = r.groupid;
    if (b.skipsSpan(spanGroup, layoutGroup)) continue;
    if (r.tp == 1) {
      if (layoutGroup >= 1) b.addGroup(layoutGroup, top);
      layoutGroup = r.groupid;
      top = b.y();
    } else if (b.passesFilter(r.tp, layoutGroup)) {
      if (r.tp == 6)
        b.addPic(r, layoutGroup);
      else
        b.addText(r, layoutGroup);
    }
  }
  b.addGroup(layoutGroup, top);
  TextLayout out = b.finish();
  out.faults = text.faults;
  return out;
}

// In the JSON form each group object is a group of its own, closed even when it is empty or
// outside the span; a picture of kind 6 is followed by its spacer.
TextLayout layoutJson(const std::vector<Group>& groups, const LayoutSettings& settings,
                      const GroupFilter& filter, const LayoutTools& tools) {
  RowBuilder b(settings, filter, tools);
  for (const Group& g : groups) {
    const double top = b.y();
    b.noteGroup(g.groupid);
    for (const Record& r : g.items) {
      b.noteHidden(r);
      if (b.skipsSpan(g.groupid, g.groupid) || !b.passesFilter(r.tp, g.groupid)) continue;
      if (r.tp == 8) {
        b.addButton(r, g.groupid);
        continue;
      }
      if (r.tp == 6) b.addPic(r, g.groupid);
      b.addText(r, g.groupid);
    }
    b.addGroup(g.groupid, top);
  }
  return b.finish();
}

}  // namespace lad::content
