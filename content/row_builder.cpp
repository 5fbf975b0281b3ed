// Row geometry: a text wrapped in what is left of the column beside its pictures and link mark,
// centred on a picture that is higher than it.
#include "content/row_builder.h"

#include <algorithm>
#include <cstdint>

#include "content/display.h"
#include "drawing/text_measure.h"

namespace lad::content {

namespace {

constexpr double kMargins = 30, kSmallPic = 32, kSmallPicPart = 35, kBigPic = 100,
                 kBigPicPart = 103, kLinkPart = 32, kSpacer = 5, kPartialButton = 30,
                 kPicWidth = 300, kButtonWidth = 296, kButtonHeight = 40, kButtonStep = 45;

std::optional<double> typeSize(int tp) {
  switch (tp) {
    case 2:
    case 5:
      return 17;
    case 3:
    case 8:
      return 15;
    case 4:
      return 12;
    case 7:
      return 14;
    default:
      return std::nullopt;
  }
}

double browserMeasure(std::string_view text, double size, double width) {
  return drawing::measureText(text, drawing::Font{size, false}, width).h;
}

}  // namespace

RowBuilder::RowBuilder(const LayoutSettings& settings, const GroupFilter& filter,
                       const LayoutTools& tools)
    : settings_(settings),
      filter_(filter),
      tools_(tools),
      measure_(tools.measure ? tools.measure : Measure(browserMeasure)),
      y_(settings.top) {}

Row& RowBuilder::push(RowKind kind, const Record* r, int group) {
  Row row;
  row.kind = kind;
  row.group = group;
  row.y = y_;
  if (r) {
    row.tp = r->tp;
    row.linkid = r->linkid;
  }
  out_.rows.push_back(std::move(row));
  return out_.rows.back();
}

void RowBuilder::addText(const Record& r, int group) {
  const auto size = typeSize(r.tp);
  Row& row = push(size ? RowKind::Text : RowKind::Spacer, &r, group);
  if (size) placeText(row, r);
  y_ = row.y + row.height + kSpacer + settings_.lineDistance;
}

void RowBuilder::placeText(Row& row, const Record& r) {
  row.fontSize = *typeSize(r.tp);
  row.color = r.tp == 2 || r.tp == 3 ? ColorRole::Heading : ColorRole::Body;
  row.text = shownText(r.format, r.text, settings_.startDate, *tools_.dates);
  row.pic = r.pic;
  row.bigpic = r.bigpic;
  attachTargets(row, r);
  const bool smallPic = row.tick >= 0 || !r.pic.empty();
  const double left = !r.bigpic.empty() ? kBigPicPart : smallPic ? kSmallPicPart : 0;
  const double right = row.weblink || r.linkid ? kLinkPart : 0;
  row.textX = kMargins / 2 + left;
  row.width = std::max(1.0, settings_.columnWidth - kMargins - left - right);
  const double textHeight = measure_(row.text, row.fontSize, row.width) + 1;
  const double picture = !r.bigpic.empty() ? kBigPic : smallPic ? kSmallPic : 0;
  const double pad = std::max(0.0, (picture - textHeight) / 2);
  row.textY = row.y + (r.tp == 4 ? 1 : 7) + pad;
  row.height = textHeight + 2 * pad;
}

void RowBuilder::attachTargets(Row& row, const Record& r) {
  if (r.checkid) row.tick = out_.checks.add(tickGuid(*r.checkid));
  if (!r.weblink.empty() && r.linkid == 0) {
    out_.webLinks.push_back(r.weblink);
    row.weblink = static_cast<int>(out_.webLinks.size());
  }
}

void RowBuilder::addPic(const Record& r, int group) {
  Row& row = push(RowKind::Picture, &r, group);
  row.pic = r.pic;
  const auto size = tools_.imageSize ? tools_.imageSize(r.pic) : std::nullopt;
  row.width = kPicWidth;
  if (size && size->w > 0) row.height = kPicWidth * size->h / size->w;
  y_ = row.y + row.height + kSpacer;
}

void RowBuilder::addButton(const Record& r, int group) {
  Row& row = push(RowKind::Button, &r, group);
  row.text = r.text;
  row.fontSize = 14;
  row.color = ColorRole::Theme;
  row.width = kButtonWidth;
  row.height = kButtonHeight;
  y_ = row.y + kButtonStep;
}

void RowBuilder::addGroup(int groupid, double top) {
  out_.groups.push_back({groupid, top, y_});
}

void RowBuilder::noteGroup(int groupid) {
  out_.groupMax = std::max(out_.groupMax, groupid);
}

void RowBuilder::noteHidden(const Record& r) {
  if (!r.hiddentext.empty())
    out_.hidden.push_back({r.hiddentext, r.checkid ? tickGuid(*r.checkid) : std::string()});
}

bool RowBuilder::skipsSpan(int group, int layoutGroup) {
  const std::int64_t p = filter_.partialStart;
  if (p < 0 || layoutGroup == p + 5 || (group >= p && group <= p + 5)) return false;
  const bool above = group < p;
  bool& pending = above ? buttonAbove_ : buttonBelow_;
  if (pending) {
    push(RowKind::PartialButton, nullptr, layoutGroup).partialButton = above ? 1 : 2;
    out_.rows.back().height = kPartialButton;
    y_ += kPartialButton;
    pending = false;
  }
  return true;
}

bool RowBuilder::passesFilter(int tp, int group) const {
  return filter_.groupid < 0 || (tp >= 4 && filter_.groupid == group);
}

TextLayout RowBuilder::finish() {
  out_.height = y_;
  return std::move(out_);
}

}  // namespace lad::content
