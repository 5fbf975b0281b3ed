#include "cloud/cloud_pass.h"

#include "cloud/old_format.h"
#include "core/context.h"
#include "store/store.h"

namespace lad::cloud {

namespace {

constexpr std::string_view kCaption = "Работа с облаком";

void notifyOnce(Context& context, std::string_view key, std::string_view text,
                PassOutcome& outcome) {
  if (!context.settings().helpCheck(key)) return;
  context.settings().helpFinish(key);
  outcome.notices.push_back({std::string(kCaption), std::string(text)});
}

// Takes in every complete file of the old format; once the folder is complete, the import
// is over and the installation syncs from now on.
void importOldFormat(Store& store, const CloudListing& listing, PassOutcome& outcome) {
  Context& context = store.context();
  for (const auto& file : listing.oldFormat) {
    std::string error;
    if (!importOldCloudFile(store, file, &error)) outcome.importErrors.push_back(error);
    outcome.dataChanged = true;
  }
  if (listing.down != listing.total) return;
  outcome.dataChanged = true;
  context.values().cloudMode = kCloudSync;
  context.settings().set("icloud", kCloudSync);
  context.settings().synchronize();
  if (context.values().oldCloudFound)
    notifyOnce(context, "optimizecloud",
               "Все данные из облака загружены. Рекомендуется зайти в раздел работы c облаком "
               "и оптимизировать данные в облаке.",
               outcome);
}

// Leaves out the files refused before that have not changed since, and remembers the ones
// refused now.
std::vector<PendingChange> notRefused(std::vector<PendingChange> pending,
                                      const RefusedFiles* refused) {
  if (!refused) return pending;
  std::erase_if(pending, [&](const PendingChange& change) {
    const auto it = refused->find(change.name);
    return it != refused->end() && it->second == change.changed;
  });
  return pending;
}

void rememberRefused(const std::vector<PendingChange>& tried, const ScanReport& report,
                     RefusedFiles* refused) {
  if (!refused) return;
  for (const SkippedChange& skipped : report.skipped)
    for (const PendingChange& change : tried)
      if (change.name == skipped.name) (*refused)[change.name] = change.changed;
  for (const std::string& name : report.applied) refused->erase(name);
}

}  // namespace

PassOutcome cloudPass(Store& store, const PassOptions& options) {
  PassOutcome outcome;
  Context& context = store.context();
  const int mode = context.values().cloudMode;
  if (mode != kCloudImport && mode != kCloudSync) return outcome;
  const CloudListing listing = listCloudFolder(context, options.settle);
  context.values().cloudPercent = listing.percent();
  if (mode == kCloudImport) importOldFormat(store, listing, outcome);
  if (context.values().cloudMode != kCloudSync) return outcome;
  if (listing.percent() == 100 && context.settings().boolForKey("cloudall")) {
    context.settings().set("cloudall", false);
    context.settings().synchronize();
  }
  const auto tried = notRefused(listing.pending, options.refused);
  outcome.report = applyPending(store, tried, options.progress);
  rememberRefused(tried, outcome.report, options.refused);
  if (!outcome.report.applied.empty()) outcome.dataChanged = true;
  if (context.values().oldCloudFound)
    notifyOnce(context, "oldcloud",
               "В облаке обнаружены данные в старом формате. Если Вы хотите их восстановить - "
               "перейдите в раздел настройки облака на главном экране программы.",
               outcome);
  return outcome;
}

void chooseCloudSync(Context& context) {
  if (context.values().cloudMode != kCloudImport) context.values().cloudMode = kCloudSync;
  context.settings().set("cloudall", true);
  context.settings().set("icloud", context.values().cloudMode);
  context.settings().synchronize();
}

}  // namespace lad::cloud
