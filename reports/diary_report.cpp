#include "reports/diary_report.h"

#include "core/context.h"
#include "reports/diary_pages.h"
#include "reports/report_days.h"
#include "reports/report_page_output.h"
#include "reports/title_page.h"
#include "store/day_regims.h"
#include "store/dictionary.h"
#include "store/store.h"

namespace lad::reports {

namespace {

// The regim of the report's days in each edition.
int reportRegim(DayEdition edition) {
  switch (edition) {
    case DayEdition::Child:
      return 6;
    case DayEdition::Woman:
      return 3;
    case DayEdition::Pregnancy:
      break;
  }
  return 4;
}

}  // namespace

std::filesystem::path reportFile(const Context& context) {
  return context.documentsDir() / "report.pdf";
}

bool saveDiaryReport(Store& store, const std::string& gid, int year, const Map& dic,
                     const std::filesystem::path& target, const ReportOptions& options,
                     std::string* error) {
  const Context& context = store.context();
  const List listData = loadConstList(store, 0, std::nullopt);
  const Date from = dic["dat1"].asDate().value_or(context.clock().now());
  const std::vector<ReportDay> days = loadReportDays(
      store, gid, reportRegim(dayEdition(context.values().appid)), year, from, listData);
  const std::string caption = dic["caption"].text();
  drawing::PdfDocument pdf(target, kReportPage, caption, caption);
  const PdfSettings settings = pdfPrepare(context, kReportPage);
  drawTitlePage(pdf.canvas(), context, settings, options.imagesDir, dic);
  pdf.endPage();
  const RowPainter rows(context, settings, options.imagesDir, listData);
  ReportPageOutput output(context, pdf, settings, rows, options.imagesDir);
  DiaryPages pages(output, settings, rows);
  pdf.prefetchPictures(dayPhotos(days), settings.imsize);
  pages.drawPages(days, [&](std::size_t done) {
    if (options.progress) options.progress(done, days.size());
  });
  return pdf.finish(error);
}

double getReportSize(const std::filesystem::path& file) {
  std::error_code error;
  const auto bytes = std::filesystem::file_size(file, error);
  return error ? 0 : static_cast<double>(bytes / 1048576);
}

}  // namespace lad::reports
