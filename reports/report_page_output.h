// The report's pages of days: drawn straight into the PDF, each page with its frame pictures
// and its number.
#pragma once

#include <filesystem>

#include "drawing/pdf_document.h"
#include "reports/day_caps.h"
#include "reports/page_output.h"

namespace lad::reports {

class ReportPageOutput : public PageOutput {
 public:
  ReportPageOutput(const Context& context, drawing::PdfDocument& pdf, const PdfSettings& settings,
                   const RowPainter& rows, std::filesystem::path imagesDir);

  void newPage(bool close) override;
  double dayCap(double y, const Map& day, bool big, bool small) override;
  double row(double y, const ReportRow& row, std::optional<Date> date) override;
  bool photo(const std::string& file,
             const std::function<std::optional<drawing::Rect>()>& place) override;
  void endPages() override;

 private:
  drawing::PdfDocument& pdf_;
  const PdfSettings& s_;
  const RowPainter& rows_;
  DayCapPainter caps_;
  std::filesystem::path imagesDir_;
  int pageCount_ = 0;  // pages of days begun; the title page is not counted
};

}  // namespace lad::reports
