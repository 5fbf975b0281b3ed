// The first pass of the photo book: the diary's page layout, run with the book's sizes, is
// recorded as drawing commands, each with the page it stands on. Page breaks become
// "bookSavePage" commands, and the days' photos gather into pages of up to four photos
// ("bookSaveImagePage") that follow the text they stood in.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "reports/book_picture_page.h"
#include "reports/book_style.h"
#include "reports/page_output.h"

namespace lad::reports {

struct BookCommand {
  // "pdfDrawDayCap", "drawPDFPart", "drawPDFPartMulti", "drawPDFPartMulti2", "bookSavePage"
  // or "bookSaveImagePage"
  std::string func;
  int page = 0;
  double top = 0;
  Map day;  // pdfDrawDayCap: the day's "group", "month" and "day"
  bool needBig = false, needSmall = false;
  ReportRow row;  // the rows: tp, pic and text or the value
  std::optional<Date> date;
  std::vector<BookImage> images;  // bookSaveImagePage
};

class BookRecorder : public PageOutput {
 public:
  static constexpr std::size_t kImagesAPage = 4;

  BookRecorder(const PdfSettings& settings, const RowPainter& rows,
               int firstPage = kFirstInnerPage);

  void newPage(bool close) override;
  double dayCap(double y, const Map& day, bool big, bool small) override;
  double row(double y, const ReportRow& row, std::optional<Date> date) override;
  bool photo(const std::string& file,
             const std::function<std::optional<drawing::Rect>()>& place) override;
  void endPages() override;

  // bookPageData: the commands in the order recorded.
  const std::vector<BookCommand>& commands() const { return commands_; }

 private:
  BookCommand& record(std::string func, double top = 0);
  void closeTextPage();
  void flushImages();

  const PdfSettings& s_;
  const RowPainter& rows_;
  int page_;           // the page being filled
  bool open_ = false;  // the page being filled has text on it
  std::vector<BookImage> pending_;
  std::vector<BookCommand> commands_;
};

}  // namespace lad::reports
