#include "reports/report_days.h"

#include "core/context.h"
#include "store/day_loader.h"
#include "store/day_rows.h"
#include "store/store.h"
#include "store/values/today_note.h"

namespace lad::reports {

namespace {

std::vector<ReportRow> reportRows(const List& rows) {
  std::vector<ReportRow> out;
  out.reserve(rows.size());
  for (const Value& row : rows)
    out.push_back({static_cast<int>(row["tp"].intValue()), row["pic"].text(), row["text"].text(),
                   row["source"].text()});
  return out;
}

}  // namespace

std::vector<ReportDay> loadReportDays(Store& store, const std::string& gid, int regim, int year,
                                      Date from, const List& listData) {
  const Context& context = store.context();
  const List days = loadNoteData(store, regim, year, from, gid);
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

std::vector<std::string> dayPhotos(const std::vector<ReportDay>& days) {
  std::vector<std::string> files;
  for (const ReportDay& day : days)
    if (!day.photo.empty()) files.push_back(day.photo);
  return files;
}

}  // namespace lad::reports
