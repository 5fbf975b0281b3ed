#include "cloud/change_apply.h"

#include "cloud/change_check.h"
#include "cloud/change_names.h"
#include "cloud/property_list.h"
#include "cloud/received_files.h"
#include "cloud/tick_change.h"
#include "core/atomic_file.h"
#include "core/context.h"
#include "health/child_feeding.h"
#include "store/dictionary.h"
#include "store/records.h"
#include "store/setup_data.h"
#include "store/store.h"

namespace lad::cloud {

namespace {

ChangeOutcome refused(std::string reason) {
  return {false, std::move(reason), {}};
}

const List& listOf(const Map& root, std::string_view key) {
  static const List kNone;
  const Value* value = root.find(key);
  return value ? *value->asList() : kNone;
}

// The profile's setup travels with every kind, so a day also brings its writer's profile.
void applyContent(Store& store, const Map& root) {
  const std::string gid = root["gid"].text();
  if (const Map* setup = root["setup"].asMap()) saveSetupData(store, kSetupFromCloud, *setup, gid);
  const auto day = store.context().dates().dateFromString(root["date"].text());
  if (root.contains("data"))
    saveNoteData(store, kNoteFromCloud, listOf(root, "data"), listOf(root, "const"), gid, *day);
  if (root.contains("kormdata")) {
    health::saveKormForDate(store, listOf(root, "kormdata"), *day, gid);
    correctConstList(store, listOf(root, "const"));
  }
}

}  // namespace

ChangeOutcome applyChangeFile(Store& store, const std::filesystem::path& file,
                              std::optional<Date> receipt) {
  const auto text = readWholeFile(file);
  if (!text) return refused("the file cannot be read");
  const auto* first = reinterpret_cast<const std::uint8_t*>(text->data());
  std::string error;
  const auto root = fromPropertyList({first, text->size()}, &error);
  if (!root) return refused(error);
  const bool ticks = isTicksFileName(file.filename().string());
  const std::string problem = ticks ? ticksProblem(*root) : changeProblem(store.context(), *root);
  if (!problem.empty()) return refused(problem);
  if (ticks) {
    applyTicks(store, *root->asMap(), receipt);
    return {true, {}, {}};
  }
  applyContent(store, *root->asMap());
  ChangeOutcome outcome{true, {}, {}};
  writeReceivedFiles(store.context(), listOf(*root->asMap(), "images"), outcome.notes);
  return outcome;
}

}  // namespace lad::cloud
