#include "reports/book_recorder.h"

#include "reports/day_caps.h"

namespace lad::reports {

namespace {

const char* rowFunc(int tp) {
  if (rowShape(tp) != RowShape::Lines) return "drawPDFPart";
  return isTimedLines(tp) ? "drawPDFPartMulti" : "drawPDFPartMulti2";
}

}  // namespace

BookRecorder::BookRecorder(const PdfSettings& settings, const RowPainter& rows, int firstPage)
    : s_(settings), rows_(rows), page_(firstPage) {}

BookCommand& BookRecorder::record(std::string func, double top) {
  BookCommand& c = commands_.emplace_back();
  c.func = std::move(func);
  c.page = page_;
  c.top = top;
  return c;
}

// A page is turned only when text stands on it, so that no empty page is made.
void BookRecorder::newPage(bool close) {
  if (close) closeTextPage();
}

double BookRecorder::dayCap(double y, const Map& day, bool big, bool small) {
  BookCommand& c = record("pdfDrawDayCap", y);
  for (const char* key : {"group", "month", "day"}) c.day.set(key, day[key]);
  c.needBig = big;
  c.needSmall = small;
  open_ = true;
  return dayCapEnd(s_, y, big, small);
}

double BookRecorder::row(double y, const ReportRow& row, std::optional<Date> date) {
  const double end = rows_.drawnEnd(y, row, date);
  if (end <= y) return end;
  BookCommand& c = record(rowFunc(row.tp), y);
  c.row = row;
  c.date = date;
  open_ = true;
  return end;
}

bool BookRecorder::photo(const std::string& file,
                         const std::function<std::optional<drawing::Rect>()>&) {
  pending_.push_back({file, true});
  if (pending_.size() < kImagesAPage) return false;
  flushImages();
  return true;
}

void BookRecorder::endPages() {
  closeTextPage();
  if (!pending_.empty()) flushImages();
}

void BookRecorder::closeTextPage() {
  if (!open_) return;
  record("bookSavePage");
  ++page_;
  open_ = false;
}

// The gathered photos go onto a page of their own behind the text they stood in.
void BookRecorder::flushImages() {
  closeTextPage();
  record("bookSaveImagePage").images = std::move(pending_);
  pending_.clear();
  ++page_;
}

}  // namespace lad::reports
