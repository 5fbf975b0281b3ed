#include "reports/report_job.h"

#include "core/context.h"
#include "core/ids.h"
#include "reports/doctor_report.h"
#include "reports/report_input.h"
#include "store/profiles.h"
#include "store/setup_data.h"
#include "store/store.h"

namespace lad::reports {

std::string defaultReportProfile(Store& store) {
  const int appid = store.context().values().appid;
  if (isCycleEdition(appid)) return newID2(1, 1);
  if (isPregnancyEdition(appid))
    if (auto running = getActivePregnancy(store, store.context().clock().now())) return *running;
  const List profiles = loadProfils(store);
  if (profiles.empty()) return "";
  return (isChildEdition(appid) ? profiles.front() : profiles.back())["guid"].text();
}

int defaultReportYear(Store& store, const std::string& gid) {
  const Context& context = store.context();
  const Date today = context.clock().now();
  if (isCycleEdition(context.values().appid)) return context.dates().decodeDate(today).year;
  if (!isChildEdition(context.values().appid)) return 0;
  const auto born = loadSetupData(store, gid)["birthdate"].asDate();
  if (!born) return 1;
  int year = 1;
  while (context.dates().addYears(*born, year) <= today) ++year;
  return year;
}

std::filesystem::path defaultReportFile(const Context& context, ReportKind kind) {
  switch (kind) {
    case ReportKind::Pressure:
      return doctorReportFile(context, DoctorReport::Pressure);
    case ReportKind::Fluid:
      return doctorReportFile(context, DoctorReport::Fluid);
    case ReportKind::Diary:
      break;
  }
  return reportFile(context);
}

bool makeReport(Store& store, const ReportRequest& r, const ReportOptions& options,
                std::string* error) {
  switch (r.kind) {
    case ReportKind::Pressure:
      return saveDoctorReport(store, DoctorReport::Pressure, r.date, r.gid, options.imagesDir,
                              r.target, error);
    case ReportKind::Fluid:
      return saveDoctorReport(store, DoctorReport::Fluid, r.date, r.gid, options.imagesDir,
                              r.target, error);
    case ReportKind::Diary:
      break;
  }
  return saveDiaryReport(store, r.gid, r.year, diaryReportInput(store, r.gid, r.year), r.target,
                         options, error);
}

}  // namespace lad::reports
