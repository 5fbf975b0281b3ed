// The days of the diary laid out over pages: each day under its headings, rows moved to the
// next page or split across pages when they do not fit, the day's photo at its end. The report
// draws what this lays out straight away; the photo book records it (see PageOutput).
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "reports/page_output.h"
#include "reports/pdf_rows.h"

namespace lad::reports {

// One day as the pages draw it.
struct ReportDay {
  Map day;                      // "group", "month", "day" of the loaded day
  std::vector<ReportRow> rows;  // in the editor's order
  std::optional<Date> date;
  std::string photo;  // the full picture's file, when the day has one
};

class DiaryPages {
 public:
  // The rows measure with `rows`; everything goes to `output`.
  DiaryPages(PageOutput& output, const PdfSettings& settings, const RowPainter& rows);

  // pdfDrawPages: starts the first page of days, lays them all out and ends the last page.
  // The progress hears of each day done.
  void drawPages(const std::vector<ReportDay>& days,
                 const std::function<void(std::size_t)>& progress = {});

 private:
  struct Flags {
    bool big = false;    // the group heading is still to be drawn
    bool small = false;  // the date heading is still to be drawn
    double extra = 0;    // the height the headings still to be drawn take
  };

  void newPage();
  double drawDayCap(double y, const Map& day, Flags& f);
  void drawDay(const ReportDay& day);
  void drawLines(const ReportDay& day, const ReportRow& row, Flags& f);
  void drawPlain(const ReportDay& day, const ReportRow& row, Flags& f);
  void splitRow(const ReportDay& day, const ReportRow& row, Flags& f);
  std::optional<drawing::Rect> photoBox(const ReportDay& day, Flags& f);
  bool fits(const Flags& f, double bottom) const;

  PageOutput& output_;
  const PdfSettings& s_;
  const RowPainter& rows_;
  std::int64_t lastGroup_ = 0;  // waslastgroup
  double y_ = 0;
};

}  // namespace lad::reports
