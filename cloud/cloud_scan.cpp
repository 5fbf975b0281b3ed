#include "cloud/cloud_scan.h"

#include <algorithm>
#include <system_error>

#include "cloud/change_apply.h"
#include "cloud/change_folder.h"
#include "cloud/change_names.h"
#include "core/context.h"
#include "store/folders.h"
#include "store/store.h"

namespace lad {

namespace {

bool isNewer(const Context& context, const std::string& name, Date changed) {
  const auto receipt = changeReceipt(context, name);
  return !receipt || *receipt < changed;
}

}  // namespace

std::vector<PendingChange> pendingChanges(Context& context) {
  std::vector<PendingChange> pending;
  if (!hasCloudFolder(context)) return pending;
  std::error_code error;
  for (const auto& entry : std::filesystem::directory_iterator(cloudFolderOf(context), error)) {
    const std::string name = entry.path().filename().string();
    if (isHiddenFromScan(name) || isDirectory(entry.path())) continue;
    if (!isChangeFileName(name)) {
      context.values().oldCloudFound = true;
      continue;
    }
    const auto changed = fileChangeDate(entry.path());
    if (!changed || isReservedName(name) || !isNewer(context, name, *changed)) continue;
    pending.push_back({name, entry.path(), *changed});
  }
  std::stable_sort(pending.begin(), pending.end(),
                   [](const auto& a, const auto& b) { return a.changed < b.changed; });
  return pending;
}

ScanReport scanCloudFolder(Store& store) {
  ScanReport report;
  for (const PendingChange& change : pendingChanges(store.context())) {
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
  return report;
}

}  // namespace lad
