#include "reports/diary_report.h"

#include "core/context.h"
#include "reports/diary_pages.h"
#include "reports/title_page.h"
#include "store/day_loader.h"
#include "store/day_regims.h"
#include "store/day_rows.h"
#include "store/dictionary.h"
#include "store/store.h"
#include "store/today_note.h"

namespace lad::report {

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

std::vector<ReportRow> reportRows(const List& rows) {
  std::vector<ReportRow> out;
  out.reserve(rows.size());
  for (const Value& row : rows)
    out.push_back({static_cast<int>(row["tp"].intValue()), row["pic"].text(), row["text"].text(),
                   row["source"].text()});
  return out;
}

std::vector<ReportDay> loadReportDays(Store& store, const std::string& gid, int year,
                                      const Map& dic, const List& listData) {
  const Context& context = store.context();
  const DayEdition edition = dayEdition(context.values().appid);
  const Date from = dic["dat1"].asDate().value_or(context.clock().now());
  const List days = loadNoteData(store, reportRegim(edition), year, from, gid);
  List fields;
  initTodayNoteStruct(context, fields);
  std::vector<ReportDay> out;
  out.reserve(days.size());
  for (const Value& each : days) {
    const Map* day = each.asMap();
    if (!day) continue;
    List rows = fields;
    noteStructToTodayNote(context, *day, rows, listData);
    ReportDay& d = out.emplace_back();
    d.day = *day;
    d.rows = reportRows(rows);
    d.date = (*day)["dat"].asDate();
    if ((*day)["isphoto"].boolValue()) d.photo = (*day)["photopath2"].text();
  }
  return out;
}

// The days' photos in the order the pages draw them.
std::vector<std::string> dayPhotos(const std::vector<ReportDay>& days) {
  std::vector<std::string> files;
  for (const ReportDay& day : days)
    if (!day.photo.empty()) files.push_back(day.photo);
  return files;
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
  const std::vector<ReportDay> days = loadReportDays(store, gid, year, dic, listData);
  const std::string caption = dic["caption"].text();
  draw::PdfDocument pdf(target, kReportPage, caption, caption);
  const PdfSettings settings = pdfPrepare(context, kReportPage);
  drawTitlePage(pdf.canvas(), context, settings, options.imagesDir, dic);
  pdf.endPage();
  const RowPainter rows(context, settings, options.imagesDir, listData);
  DiaryPages pages(context, pdf, settings, rows, options.imagesDir);
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

}  // namespace lad::report
