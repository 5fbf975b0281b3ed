#include "reports/diary_pages.h"

#include "reports/picture_size.h"

namespace lad::reports {

DiaryPages::DiaryPages(PageOutput& output, const PdfSettings& settings, const RowPainter& rows)
    : output_(output), s_(settings), rows_(rows) {}

void DiaryPages::newPage() {
  output_.newPage(true);
  y_ = s_.top();
}

double DiaryPages::drawDayCap(double y, const Map& day, Flags& f) {
  if (!f.big && !f.small) return y;
  y = output_.dayCap(y, day, f.big, f.small);
  f = {};
  return y;
}

bool DiaryPages::fits(const Flags& f, double bottom) const {
  return f.extra + bottom + 10 * s_.ot <= s_.page.h;
}

void DiaryPages::drawPages(const std::vector<ReportDay>& days,
                           const std::function<void(std::size_t)>& progress) {
  output_.newPage(false);
  y_ = s_.top();
  for (std::size_t i = 0; i < days.size(); ++i) {
    drawDay(days[i]);
    if (progress) progress(i + 1);
  }
  output_.endPages();
}

void DiaryPages::drawDay(const ReportDay& day) {
  const std::int64_t group = day.day["group"].intValue();
  Flags f{group != lastGroup_, true, 0};
  lastGroup_ = group;
  if (f.big) f.extra = s_.wh + 3 * s_.ot;
  f.extra += s_.dh + s_.ot;
  for (const ReportRow& row : day.rows) {
    switch (rowShape(row.tp)) {
      case RowShape::Lines:
        drawLines(day, row, f);
        break;
      case RowShape::Plain:
        drawPlain(day, row, f);
        break;
      case RowShape::Photo:
        break;
    }
  }
  if (!day.photo.empty() && output_.photo(day.photo, [&] { return photoBox(day, f); }))
    y_ = s_.top();
  y_ += 3 * s_.ot;
}

// A row of lines is never split: it moves whole to a new page when it does not fit.
void DiaryPages::drawLines(const ReportDay& day, const ReportRow& row, Flags& f) {
  const double bottom = rows_.drawRow(nullptr, y_, row, day.date);
  bool paged = false;
  if (!fits(f, bottom)) {
    newPage();
    paged = true;
  }
  if (bottom > y_ || paged) y_ = drawDayCap(y_, day.day, f);
  y_ = output_.row(y_, row, day.date);
}

// A plain row that does not fit is split when more than 20 units of room are left, else it
// moves to a new page, where it is split only if it is longer than a page.
void DiaryPages::drawPlain(const ReportDay& day, const ReportRow& row, Flags& f) {
  double bottom = rows_.drawPart(nullptr, y_, row.pic, row.text);
  if (!fits(f, bottom)) {
    const double room = s_.page.h - 10 * s_.ot - y_ - f.extra;
    if (room > 20 * s_.ot) return splitRow(day, row, f);
    newPage();
    bottom = rows_.drawPart(nullptr, y_, row.pic, row.text);
    if (!fits(f, bottom)) return splitRow(day, row, f);
  }
  if (bottom > y_) y_ = drawDayCap(y_, day.day, f);
  y_ = output_.row(y_, row, day.date);
}

// The room given to each piece is measured from y before the headings are drawn, so a piece
// under headings may run over the bottom margin by their height.
void DiaryPages::splitRow(const ReportDay& day, const ReportRow& row, Flags& f) {
  const RowTextMeasurer measurer(s_.fontsize);
  std::string remainder = row.text;
  for (;;) {
    const SplitText piece =
        splitString(remainder, s_.rowTextWidth(), s_.page.h - 10 * s_.ot - y_, measurer);
    y_ = drawDayCap(y_, day.day, f);
    const double end = output_.row(y_, {row.tp, row.pic, piece.line, ""}, day.date);
    if (!piece.ost) {
      y_ = end;
      break;
    }
    newPage();
    f = {};
    remainder = *piece.ost;
  }
  f = {};
}

// The box of the day's photo under its headings, on a new page when it does not fit; nullopt
// when the photo cannot be read.
std::optional<drawing::Rect> DiaryPages::photoBox(const ReportDay& day, Flags& f) {
  const auto size = pictureSize(day.photo);
  if (!size) return std::nullopt;
  const double w = size->width, h = size->height;
  const double drawnW = w > h ? s_.imsize : s_.imsize * w / h;
  const double drawnH = w > h ? s_.imsize * h / w : s_.imsize;
  if (f.extra + y_ + drawnH + 10 * s_.ot > s_.page.h) newPage();
  const double top = drawDayCap(y_, day.day, f) + s_.ot;
  y_ = top + drawnH;
  return drawing::Rect{10 * s_.ot, top, drawnW, drawnH};
}

}  // namespace lad::reports
