#include "reports/diary_pages.h"

#include <fstream>
#include <iterator>

#include "core/context.h"
#include "core/date_names.h"
#include "core/text_fill.h"
#include "platform/images.h"

namespace lad::report {

namespace {

const draw::Color kNumberColor{0, 0, 0, 0.8};
const draw::Shadow kPhotoShadow{{0.7, 0.7, 0.7}, {2, 2}, 3};

std::optional<ImageSize> pictureSize(const std::string& file) {
  std::ifstream in(file, std::ios::binary);
  if (!in) return std::nullopt;
  // The header of a JPEG holds its size and orientation well inside its first 256 KiB.
  std::vector<std::uint8_t> head(256 * 1024);
  in.read(reinterpret_cast<char*>(head.data()), static_cast<std::streamsize>(head.size()));
  head.resize(static_cast<std::size_t>(in.gcount()));
  return imageSize(head);
}

}  // namespace

DiaryPages::DiaryPages(const Context& context, draw::PdfDocument& pdf,
                       const PdfSettings& settings, const RowPainter& rows,
                       std::filesystem::path imagesDir)
    : context_(context),
      pdf_(pdf),
      s_(settings),
      rows_(rows),
      imagesDir_(std::move(imagesDir)) {}

void DiaryPages::newPage(bool close) {
  if (close) pdf_.endPage();
  ++pageCount_;
  draw::Canvas& c = pdf_.canvas();
  const double w = s_.page.w, h = s_.page.h;
  for (const auto& [name, atBottom] : {std::pair{"pdftitle-top.jpg", false},
                                       std::pair{"pdftitle-bottom.jpg", true}}) {
    const std::string file = (imagesDir_ / name).string();
    if (const auto size = pictureSize(file); size && size->width > 0) {
      const double drawn = w * size->height / size->width;
      c.drawImage(file, {0, atBottom ? h - drawn : 0, w, drawn});
    }
  }
  const draw::Font font{s_.fontsize * 1.2, false};
  c.drawText(std::to_string(pageCount_ + 1), {0, h - 8.7 * s_.ot, w - 2 * s_.ot, s_.fontsize * 2},
             font, kNumberColor, draw::Align::Right);
  y_ = s_.top();
}

std::string DiaryPages::groupHeading(const Map& day) const {
  const int appid = context_.values().appid;
  if (isChildEdition(appid))
    return fillIn(context_.translate("%d-й месяц"), day["month"].intValue());
  if (isCycleEdition(appid))
    return capitalizeFirst(
        monthName(static_cast<int>(day["group"].intValue()), context_.translator()));
  return fillIn(context_.translate("%d неделя"), day["group"].intValue());
}

double DiaryPages::drawDayCap(double y, const Map& day, Flags& f) {
  draw::Canvas& c = pdf_.canvas();
  const double width = s_.page.w - 20 * s_.ot;
  if (f.big) {
    c.drawText(groupHeading(day), {10 * s_.ot, y, width, s_.wh}, {s_.weekfontsize, true},
               s_.captioncolor, draw::Align::Left);
    y += s_.wh + 3 * s_.ot;
  }
  if (f.small) {
    c.drawText(day["day"].text(), {10 * s_.ot, y, width, s_.dh}, {s_.fontsize, true},
               s_.caption2color, draw::Align::Left);
    y += s_.dh + s_.ot;
  }
  f = {};
  return y;
}

bool DiaryPages::fits(const Flags& f, double bottom) const {
  return f.extra + bottom + 10 * s_.ot <= s_.page.h;
}

void DiaryPages::drawPages(const std::vector<ReportDay>& days,
                           const std::function<void(std::size_t)>& progress) {
  pageCount_ = 0;
  newPage(false);
  for (std::size_t i = 0; i < days.size(); ++i) {
    drawDay(days[i]);
    if (progress) progress(i + 1);
  }
  pdf_.endPage();
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
  drawPhoto(day, f);
  y_ += 3 * s_.ot;
}

// A row of lines is never split: it moves whole to a new page when it does not fit.
void DiaryPages::drawLines(const ReportDay& day, const ReportRow& row, Flags& f) {
  const double bottom = rows_.drawRow(nullptr, y_, row, day.date);
  bool paged = false;
  if (!fits(f, bottom)) {
    newPage(true);
    paged = true;
  }
  if (bottom > y_ || paged) y_ = drawDayCap(y_, day.day, f);
  y_ = rows_.drawRow(&pdf_.canvas(), y_, row, day.date);
}

// A plain row that does not fit is split when more than 20 units of room are left, else it
// moves to a new page, where it is split only if it is longer than a page.
void DiaryPages::drawPlain(const ReportDay& day, const ReportRow& row, Flags& f) {
  double bottom = rows_.drawPart(nullptr, y_, row.pic, row.text);
  if (!fits(f, bottom)) {
    const double room = s_.page.h - 10 * s_.ot - y_ - f.extra;
    if (room > 20 * s_.ot) return splitRow(day, row, f);
    newPage(true);
    bottom = rows_.drawPart(nullptr, y_, row.pic, row.text);
    if (!fits(f, bottom)) return splitRow(day, row, f);
  }
  if (bottom > y_) y_ = drawDayCap(y_, day.day, f);
  y_ = rows_.drawPart(&pdf_.canvas(), y_, row.pic, row.text);
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
    const double end = rows_.drawPart(&pdf_.canvas(), y_, row.pic, piece.line);
    if (!piece.ost) {
      y_ = end;
      break;
    }
    newPage(true);
    f = {};
    remainder = *piece.ost;
  }
  f = {};
}

void DiaryPages::drawPhoto(const ReportDay& day, Flags& f) {
  if (day.photo.empty()) return;
  const auto size = pictureSize(day.photo);
  if (!size || size->width <= 0 || size->height <= 0) return;
  const double w = size->width, h = size->height;
  const double drawnW = w > h ? s_.imsize : s_.imsize * w / h;
  const double drawnH = w > h ? s_.imsize * h / w : s_.imsize;
  if (f.extra + y_ + drawnH + 10 * s_.ot > s_.page.h) newPage(true);
  const double top = drawDayCap(y_, day.day, f) + s_.ot;
  const draw::Rect box{10 * s_.ot, top, drawnW, drawnH};
  pdf_.canvas().fillShadow(box, kPhotoShadow);
  pdf_.canvas().drawImage(day.photo, box);
  y_ = top + drawnH;
}

}  // namespace lad::report
