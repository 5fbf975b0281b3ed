// Places rows one under the other in a column and keeps the tables that go with them; the walks
// of both forms of text drive it.
#pragma once

#include "content/layout.h"

namespace lad::content {

class RowBuilder {
 public:
  RowBuilder(const LayoutSettings& settings, const GroupFilter& filter, const LayoutTools& tools);

  double y() const { return y_; }
  // A line of text, or only the spacer for kinds that show nothing.
  void addText(const Record& r, int group);
  // A full-width picture of kind 6.
  void addPic(const Record& r, int group);
  // A wide button of kind 8 that follows the row's internal link.
  void addButton(const Record& r, int group);
  void addGroup(int groupid, double top);
  // The group number and hidden texts are known even of records that are not shown.
  void noteGroup(int groupid);
  void noteHidden(const Record& r);
  // Whether the group lies outside the span being laid out; the first time a record is skipped
  // before or after the span, the button that loads the earlier or later groups is added.
  bool skipsSpan(int group, int layoutGroup);
  // Whether a record of the kind shows when only one group may be shown.
  bool passesFilter(int tp, int group) const;

  TextLayout finish();

 private:
  Row& push(RowKind kind, const Record* r, int group);
  void placeText(Row& row, const Record& r);
  // The row's tick box and web link, added to the text's tables.
  void attachTargets(Row& row, const Record& r);

  const LayoutSettings& settings_;
  const GroupFilter& filter_;
  const LayoutTools& tools_;
  Measure measure_;
  TextLayout out_;
  double y_;
  bool buttonAbove_ = true, buttonBelow_ = true;
};

}  // namespace lad::content
