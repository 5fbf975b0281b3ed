#include "health/doctor_plan.h"

#include <map>
#include <memory>
#include <mutex>

#include "content/display.h"
#include "content/resource.h"
#include "core/json_text.h"
#include "core/text_parts.h"
#include "core/value.h"

namespace lad::health {

namespace {

// A `checkid` of up to four characters is an old number.
constexpr std::size_t kLongestOldCheckid = 4;

// What tells one state of a file from another without reading it.
struct FileStamp {
  std::uintmax_t size = 0;
  std::filesystem::file_time_type written{};
  bool operator==(const FileStamp&) const = default;
};

FileStamp stampOf(const std::filesystem::path& file) {
  std::error_code error;
  FileStamp stamp;
  stamp.size = std::filesystem::file_size(file, error);
  if (!error) stamp.written = std::filesystem::last_write_time(file, error);
  return error ? FileStamp{} : stamp;
}

// What `read` makes of `file`, read again only when the file has changed since.
template <typename T, typename Read>
std::shared_ptr<const T> readWhileUnchanged(const std::filesystem::path& file, Read read) {
  static std::mutex mutex;
  static std::map<std::filesystem::path, std::pair<FileStamp, std::shared_ptr<const T>>> read_;
  const std::lock_guard lock(mutex);
  const FileStamp stamp = stampOf(file);
  auto [it, added] = read_.try_emplace(file);
  if (added || it->second.first != stamp) it->second = {stamp, std::make_shared<const T>(read())};
  return it->second.second;
}

std::vector<PlanItem> readPlan(const std::filesystem::path& folder, std::string_view file) {
  std::vector<PlanItem> items;
  const content::Resource plan = content::loadResource(folder, file);
  if (!plan.json) return items;
  const Value tree = jsonToArray(plan.text);
  if (!tree.asList()) return items;
  for (const Value& group : *tree.asList()) {
    const List* content = group["Content"].asList();
    if (!content) continue;
    for (const Value& item : *content) {
      if (!item.asMap() || !item.asMap()->contains("checkid") ||
          item["indaycomment"].text().empty())
        continue;
      PlanItem due;
      due.start = item["planestart"].intValue();
      due.tick = content::tickGuid(item["checkid"].text(), kLongestOldCheckid);
      due.dayText = item["indaycomment"].text();
      items.push_back(std::move(due));
    }
  }
  return items;
}

std::vector<WeekNotice> readNotices(const std::filesystem::path& folder) {
  std::vector<WeekNotice> rows;
  const std::string text = content::fileToString(folder, "warning");
  for (std::string_view row : splitOn(text, "<tr>")) {
    const auto fields = splitOn(row, "<td>");
    if (fields.size() < 3) continue;
    WeekNotice notice;
    notice.group = leadingInteger(content::trimText(fields[0]));
    notice.week = leadingInteger(content::trimText(fields[1]));
    notice.text = content::trimText(fields[2]);
    rows.push_back(std::move(notice));
  }
  return rows;
}

}  // namespace

std::shared_ptr<const std::vector<PlanItem>> planItems(const std::filesystem::path& folder,
                                                       std::string_view file) {
  return readWhileUnchanged<std::vector<PlanItem>>(folder / (std::string(file) + ".jsn"),
                                                   [&] { return readPlan(folder, file); });
}

std::shared_ptr<const std::vector<WeekNotice>> weekNoticeRows(const std::filesystem::path& folder) {
  return readWhileUnchanged<std::vector<WeekNotice>>(folder / "warning.txt",
                                                     [&] { return readNotices(folder); });
}

}  // namespace lad::health
