// One report asked for by a person: which of the three, of whom and of what time, and where it
// goes. The command line and the main menu both make their reports through here.
#pragma once

#include <filesystem>
#include <string>

#include "core/dates.h"
#include "reports/diary_report.h"

namespace lad::reports {

enum class ReportKind { Diary, Pressure, Fluid };

struct ReportRequest {
  ReportKind kind = ReportKind::Diary;
  std::string gid;
  Date date;     // the day of a pressure or fluid report
  int year = 0;  // the child's year of life from 1, or the woman's calendar year
  std::filesystem::path target;
};

// The profile a report is made of when none is named: the pregnancy running today (or the last
// one), the first child, or the woman.
std::string defaultReportProfile(Store& store);

// The year a report covers when none is named: the child's year of life that today falls in,
// or this calendar year; 0 in the pregnancy editions, which report the whole pregnancy.
int defaultReportYear(Store& store, const std::string& gid);

// The file of the report in the documents folder, where the main menu writes it.
std::filesystem::path defaultReportFile(const Context& context, ReportKind kind);

// Makes the report; false with *error filled when it could not be written.
bool makeReport(Store& store, const ReportRequest& request, const ReportOptions& options,
                std::string* error);

}  // namespace lad::reports
