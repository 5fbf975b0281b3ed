// The one-page reports of a day's measurements for the doctor: blood pressure (pressure.pdf)
// and liquids drunk and passed (water.pdf).
#pragma once

#include <filesystem>
#include <string>

#include "core/dates.h"

namespace lad {
class Context;
class Store;
}  // namespace lad

namespace lad::reports {

enum class DoctorReport { Pressure = 1, Fluid = 2 };

// The file of the report in the documents folder.
std::filesystem::path doctorReportFile(const Context& context, DoctorReport kind);

// pdfDocCreate: the measurements of the day in a table under the report's heading. Only the
// pregnancy editions keep them; the others get the heading and the column titles alone. False
// with *error filled when the file could not be written; an old file is then left as it was.
bool saveDoctorReport(Store& store, DoctorReport kind, Date date, const std::string& gid,
                      const std::filesystem::path& imagesDir, const std::filesystem::path& target,
                      std::string* error);

}  // namespace lad::reports
