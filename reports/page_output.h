// Where the diary's page layout puts what it lays out: straight onto the pages of a PDF (the
// report), or recorded, to be drawn one page at a time later (the photo book). The layout
// decides where each thing stands and where a page ends; the output draws or keeps it.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "core/dates.h"
#include "core/value.h"
#include "drawing/geometry.h"
#include "reports/pdf_rows.h"

namespace lad::reports {

class PageOutput {
 public:
  virtual ~PageOutput() = default;

  // Ends the page being filled, when `close`, and starts the next one.
  virtual void newPage(bool close) = 0;
  // The headings of the day at y that the flags ask for; the y behind them.
  virtual double dayCap(double y, const Map& day, bool big, bool small) = 0;
  // A row at y, drawn by its kind; the y behind it.
  virtual double row(double y, const ReportRow& row, std::optional<Date> date) = 0;
  // A day's photo. An output that shows photos in the days asks `place` for the box the photo
  // takes there; one that gathers them for pages of their own keeps the file. True when the
  // photo finished a page, so that the text goes on at the top of the next one.
  virtual bool photo(const std::string& file,
                     const std::function<std::optional<drawing::Rect>()>& place) = 0;
  // Ends the last page.
  virtual void endPages() = 0;
};

}  // namespace lad::reports
