// The diary report: a title page and every day of the period with its filled fields and photo,
// written to a PDF that replaces the old one only when it is whole.
#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "core/value.h"

namespace lad {
class Context;
class Store;
}  // namespace lad

namespace lad::reports {

struct ReportOptions {
  std::filesystem::path imagesDir;  // the program's pictures: title page, frame, row icons
  // Hears how many of the days are drawn, and of how many.
  std::function<void(std::size_t done, std::size_t total)> progress;
};

// The file of the diary report in the documents folder.
std::filesystem::path reportFile(const Context& context);

// savePDF: the days of the profile (a pregnancy from the dictionary's "dat1", a child's year of
// life or the woman's calendar year) under the title page of the input dictionary. False with
// *error filled when the file could not be written; an old file is then left as it was.
bool saveDiaryReport(Store& store, const std::string& gid, int year, const Map& dic,
                     const std::filesystem::path& target, const ReportOptions& options,
                     std::string* error);

// getReportSize: the size of the file in whole megabytes, 0 when it is not there.
double getReportSize(const std::filesystem::path& file);

}  // namespace lad::reports
