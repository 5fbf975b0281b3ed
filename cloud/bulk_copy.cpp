#include "cloud/bulk_copy.h"

#include <algorithm>
#include <system_error>

#include "cloud/change_content.h"
#include "cloud/change_folder.h"
#include "core/context.h"
#include "core/edition.h"
#include "store/folders.h"
#include "store/profiles.h"
#include "store/store.h"
#include "store/tables.h"

namespace lad::cloud {

namespace {

// Profiles are written first, at 0 %; the diary's days and feedings fill 15 % to 95 %.
constexpr int kDaysStart = 15;
constexpr int kDaysSpan = 80;
constexpr std::size_t kDayNameLength = 10;   // dd-MM-yyyy
constexpr std::size_t kChildDaySuffix = 15;  // "-dd-MM-yyyy.jpg"

std::vector<std::pair<std::string, std::string>> dayGuidRows(Store& store, const std::string& sql) {
  std::vector<std::pair<std::string, std::string>> rows;
  StoreBracket bracket = store.connectToBase();
  if (!bracket.db()) return rows;
  SqliteStatement statement = bracket.db()->prepare(sql);
  while (statement.step())
    rows.emplace_back(statement.columnText(0).value_or(""), statement.columnText(1).value_or(""));
  return rows;
}

// The day and the profile that a day photo's file name gives; nullopt for other files.
std::optional<std::pair<Date, std::string>> photoDay(const Context& context,
                                                     const std::string& name,
                                                     const std::string& firstGuid) {
  if (!name.ends_with(".jpg") || name == "tmp.jpg" || name.starts_with("child")) return {};
  const bool child = isChildEdition(context.values().appid);
  if (name.size() < (child ? kChildDaySuffix + 1 : kDayNameLength + 4)) return {};
  const std::string day =
      child ? name.substr(name.size() - 14, kDayNameLength) : name.substr(0, kDayNameLength);
  const std::string gid = child ? name.substr(0, name.size() - kChildDaySuffix) : firstGuid;
  const auto date = context.dates().dateFromStringFormat(day, "dd-MM-yyyy");
  if (!date || gid.empty()) return {};
  return std::pair{*date, gid};
}

bool isOwnOldFile(const std::filesystem::path& folder, const std::filesystem::path& file) {
  return typeFilePath(folder, file.filename().string()) != folder;
}

}  // namespace

BulkCopy::BulkCopy(Store& store) : store_(store) {
  for (const Value& profile : loadProfils(store))
    units_.push_back({kChangeProfile, std::nullopt, profile["guid"].text()});
  collectDays();
  collectPhotoDays();
  collectFeedings();
}

void BulkCopy::collectDays() {
  const EditionTables& tables = tablesFor(store_.context().values().appid);
  const std::string guid = tables.guid;
  const auto rows = dayGuidRows(store_, "select date(sdat), " + guid + " from " + tables.data +
                                            " group by date(sdat), " + guid + " order by " + guid +
                                            ", date(sdat)");
  for (const auto& [day, gid] : rows)
    if (auto date = store_.context().dates().dateFromString(day))
      units_.push_back({kChangeDay, store_.context().dates().noTime(*date), gid});
}

// Days that have a photo and no records.
void BulkCopy::collectPhotoDays() {
  const Context& context = store_.context();
  const auto firstDay = std::ranges::find(units_, kChangeDay, &Unit::kind);
  const std::string firstGuid = firstDay == units_.end() ? "" : firstDay->gid;
  std::vector<std::filesystem::path> files;
  std::error_code error;
  for (const auto& entry :
       std::filesystem::directory_iterator(context.documentsDir() / "picture", error))
    files.push_back(entry.path());
  std::ranges::sort(files);
  for (const auto& file : files) {
    const auto found = photoDay(context, file.filename().string(), firstGuid);
    if (!found) continue;
    const bool known = std::ranges::any_of(units_, [&](const Unit& unit) {
      return unit.kind == kChangeDay && unit.day == found->first &&
             (!isChildEdition(context.values().appid) || unit.gid == found->second);
    });
    if (!known) units_.push_back({kChangeDay, found->first, found->second});
  }
}

void BulkCopy::collectFeedings() {
  if (!isChildEdition(store_.context().values().appid)) return;
  const auto rows = dayGuidRows(store_,
                                "select substr(kodates,0,11) as dats, childguid from childkorm "
                                "group by childguid, substr(kodates,0,11)");
  for (const auto& [day, gid] : rows)
    if (auto date = store_.context().dates().dateFromString(day))
      units_.push_back({kChangeFeedings, store_.context().dates().noTime(*date), gid});
}

bool BulkCopy::step(std::size_t count) {
  if (done_) return false;
  for (; count > 0 && next_ < units_.size(); --count, ++next_) {
    const Unit& unit = units_[next_];
    std::string error;
    if (auto name = dataToCloud(store_, unit.kind, unit.day, unit.gid, &error))
      written_.push_back(*name);
    else
      errors_.push_back(error);
  }
  if (next_ < units_.size()) return true;
  cloudOptimize(store_, written_);
  done_ = true;
  return false;
}

std::size_t BulkCopy::firstOf(ChangeKind kind) const {
  return static_cast<std::size_t>(std::ranges::find(units_, kind, &Unit::kind) - units_.begin());
}

std::size_t BulkCopy::countOf(ChangeKind kind) const {
  return static_cast<std::size_t>(std::ranges::count(units_, kind, &Unit::kind));
}

int BulkCopy::percent() const {
  if (next_ == 0 || next_ <= countOf(kChangeProfile)) return 0;
  const ChangeKind kind = units_[next_ - 1].kind;
  const std::size_t n = countOf(kind);
  const std::size_t i = next_ - firstOf(kind);
  return static_cast<int>(i * kDaysSpan / n) + kDaysStart;
}

std::string BulkCopy::message() const {
  const Context& context = store_.context();
  if (next_ < countOf(kChangeProfile)) return context.translate("Идет копирование данных профилей");
  if (next_ < units_.size() && units_[next_].kind == kChangeFeedings)
    return context.translate("Идет копирование данных пищевого дневника");
  return context.translate("Идет копирование данных дневника");
}

void cloudOptimize(const Store& store, const std::vector<std::string>& keep) {
  const Context& context = store.context();
  if (!hasCloudFolder(context)) return;
  const std::filesystem::path folder = cloudFolderOf(context);
  std::vector<std::filesystem::path> doomed;
  std::error_code error;
  for (std::filesystem::recursive_directory_iterator it(folder, error), end; !error && it != end;
       it.increment(error)) {
    const std::string name = it->path().filename().string();
    if (isHiddenFromScan(name)) {
      if (it->is_directory(error)) it.disable_recursion_pending();
      continue;
    }
    if (!it->is_regular_file(error)) continue;
    const bool stale = it.depth() == 0 && isChangeFileName(name)
                           ? std::ranges::find(keep, name) == keep.end()
                           : isOwnOldFile(folder, it->path());
    if (stale) doomed.push_back(it->path());
  }
  for (const auto& file : doomed) std::filesystem::remove(file, error);
}

}  // namespace lad::cloud
