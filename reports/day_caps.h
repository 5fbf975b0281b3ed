// The headings of a day on the pages of days: the group's (week, month of age or calendar
// month) and the day's date under it.
#pragma once

#include "core/value.h"
#include "drawing/canvas.h"
#include "reports/pdf_settings.h"

namespace lad::reports {

// The y behind the headings the flags ask for, drawn from y.
double dayCapEnd(const PdfSettings& s, double y, bool big, bool small);

class DayCapPainter {
 public:
  DayCapPainter(const Context& context, const PdfSettings& settings);

  // pdfDrawDayCap: the headings the flags ask for, at y; the y behind them.
  double draw(drawing::Canvas& canvas, double y, const Map& day, bool big, bool small) const;

 private:
  std::string groupHeading(const Map& day) const;

  const Context& context_;
  const PdfSettings& s_;
};

}  // namespace lad::reports
