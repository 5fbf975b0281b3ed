// The doctor's plan files and the week's notice file, read again only when they change: they
// come with the program, and the main menu asks for them at every view.
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace lad::health {

// An item of a plan that can fall due: it has a start, a `checkid` and a day text.
struct PlanItem {
  std::int64_t start = 0;  // `planestart`: the week of the pregnancy it begins in
  std::string tick;        // the tick of its `checkid` in the plan's check-list
  std::string dayText;     // `indaycomment`
};

// The items of the plan file `file` (".jsn" in the content folder `folder`) that can fall due,
// in file order; none when the file is missing or is not a JSON list.
std::shared_ptr<const std::vector<PlanItem>> planItems(const std::filesystem::path& folder,
                                                       std::string_view file);

// A row "group<td>week<td>text" of the notice file.
struct WeekNotice {
  std::int64_t group = 0;
  std::int64_t week = 0;
  std::string text;
};

// The rows of the notice file "warning" in the content folder, in file order.
std::shared_ptr<const std::vector<WeekNotice>> weekNoticeRows(const std::filesystem::path& folder);

}  // namespace lad::health
