#include "cloud/cloud_scan.h"

#include <algorithm>
#include <system_error>
#include <tuple>

#include "cloud/change_apply.h"
#include "cloud/change_folder.h"
#include "cloud/change_names.h"
#include "core/context.h"
#include "store/folders.h"
#include "store/store.h"

namespace lad::cloud {

namespace {

bool isNewer(const Context& context, const std::string& name, Date changed) {
  const auto receipt = changeReceipt(context, name);
  return !receipt || *receipt < changed;
}

// Whether the file's last change lies at least `settle` in the past.
bool hasSettled(const std::filesystem::directory_entry& entry, std::chrono::milliseconds settle) {
  std::error_code error;
  const auto changed = entry.last_write_time(error);
  return !error && changed + settle <= std::filesystem::file_time_type::clock::now();
}

// A hidden name anywhere on the way from the folder (".sync/…") hides the file.
bool isHiddenPath(const std::filesystem::path& relative) {
  for (const auto& part : relative)
    if (isHiddenFromScan(part.string())) return true;
  return false;
}

void addEntry(Context& context, const std::filesystem::directory_entry& entry, bool atRoot,
              std::chrono::milliseconds settle, CloudListing& listing) {
  const std::string name = entry.path().filename().string();
  ++listing.total;
  if (!hasSettled(entry, settle)) return;
  ++listing.down;
  if (!atRoot || !isChangeFileName(name)) {
    context.values().oldCloudFound = true;
    listing.oldFormat.push_back(entry.path());
    return;
  }
  const auto changed = fileChangeDate(entry.path());
  if (!changed || isReservedName(name) || !isNewer(context, name, *changed)) return;
  listing.pending.push_back({name, entry.path(), *changed});
}

}  // namespace

int CloudListing::percent() const {
  if (total == 0) return 0;
  return static_cast<int>(static_cast<float>(down) / static_cast<float>(total) * 100.0f);
}

CloudListing listCloudFolder(Context& context, std::chrono::milliseconds settle) {
  CloudListing listing;
  if (!hasCloudFolder(context)) return listing;
  const std::filesystem::path folder = cloudFolderOf(context);
  std::error_code error;
  for (std::filesystem::recursive_directory_iterator it(folder, error), end; !error && it != end;
       it.increment(error)) {
    const std::filesystem::path relative = it->path().lexically_relative(folder);
    if (isHiddenPath(relative)) {
      if (it->is_directory(error)) it.disable_recursion_pending();
      continue;
    }
    if (it->is_regular_file(error)) addEntry(context, *it, it.depth() == 0, settle, listing);
  }
  // Files written within one tick of the file system's clock share their date; their names then
  // decide, not the folder's order, so a profile (kind 1) comes before its days (kind 2).
  std::sort(listing.pending.begin(), listing.pending.end(), [](const auto& a, const auto& b) {
    return std::tie(a.changed, a.name) < std::tie(b.changed, b.name);
  });
  return listing;
}

ScanReport applyPending(Store& store, const std::vector<PendingChange>& pending,
                        const ApplyProgress& progress) {
  ScanReport report;
  for (std::size_t i = 0; i < pending.size(); ++i) {
    const PendingChange& change = pending[i];
    if (progress) progress(i, pending.size());
    ChangeOutcome outcome =
        applyChangeFile(store, change.path, changeReceipt(store.context(), change.name));
    if (!outcome.applied) {
      report.skipped.push_back({change.name, outcome.reason});
      continue;
    }
    setChangeReceipt(store.context(), change.name, change.changed);
    report.applied.push_back(change.name);
    for (std::string& note : outcome.notes) report.notes.push_back(change.name + ": " + note);
  }
  if (progress) progress(pending.size(), pending.size());
  return report;
}

ScanReport scanCloudFolder(Store& store) {
  return applyPending(store, listCloudFolder(store.context(), {}).pending);
}

}  // namespace lad::cloud
