// The days of a profile as the pages of a report or a photo book lay them out.
#pragma once

#include <vector>

#include "reports/diary_pages.h"

namespace lad {
class Store;
}

namespace lad::reports {

// The days that the loader gives in the regim, from `from` or of the year, each with its
// rows as the day editor lists them and the file of its full photo.
std::vector<ReportDay> loadReportDays(Store& store, const std::string& gid, int regim, int year,
                                      Date from, const List& listData);

// The days' photos in the order the pages draw them.
std::vector<std::string> dayPhotos(const std::vector<ReportDay>& days);

}  // namespace lad::reports
