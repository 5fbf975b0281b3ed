#include "cloud/tick_change.h"

#include <filesystem>

#include "cloud/change_folder.h"
#include "cloud/change_names.h"
#include "cloud/property_list.h"
#include "core/atomic_file.h"
#include "core/context.h"
#include "store/selections.h"

namespace lad::cloud {

namespace {

bool fail(std::string* error, std::string reason) {
  if (error) *error = std::move(reason);
  return false;
}

// The ticks already in the file; an absent file or one without "data" holds none.
bool readTicks(const std::filesystem::path& file, Map& ticks, std::string* error) {
  std::error_code missing;
  if (!std::filesystem::exists(file, missing)) return true;
  const auto text = readWholeFile(file);
  if (!text) return fail(error, "the file of ticks cannot be read");
  const auto root =
      fromPropertyList({reinterpret_cast<const std::uint8_t*>(text->data()), text->size()}, error);
  if (!root) return false;
  if (const Map* data = (*root)["data"].asMap()) ticks = *data;
  return true;
}

std::string entryProblem(const Value& entry) {
  if (!entry.asMap()) return "a tick is not a dictionary";
  if (!entry["tagguid"].asText()) return "a tick names no item";
  if (entry["state"].type() != Value::Type::Bool) return "a tick has no state";
  if (!entry["date"].asDate()) return "a tick has no date";
  const Value::Type list = entry["seltypeid"].type();
  if (list != Value::Type::Null && list != Value::Type::Integer && list != Value::Type::Double)
    return "a tick names its list with something other than a number";
  return {};
}

}  // namespace

std::optional<std::string> keyValueToCloud(Context& context, int state, const std::string& tagguid,
                                           const Map& extra, const std::string& gid,
                                           std::string* error) {
  const std::string name = changeFileName(kChangeTicks, gid, context.values().appGuid);
  Map ticks;
  if (!readTicks(cloudFolderOf(context) / name, ticks, error)) return std::nullopt;
  Map entry = extra;
  entry.set("state", state == kTicked);
  entry.set("tagguid", tagguid);
  entry.set("date", context.clock().now());
  ticks.set(tagguid, std::move(entry));
  Map root;
  root.set("gid", gid);
  root.set("data", std::move(ticks));
  if (!writeChangeFile(context, name, root, error)) return std::nullopt;
  return name;
}

std::string ticksProblem(const Value& root) {
  if (!root.asMap()) return "the change file is not a dictionary";
  if (!root["gid"].asText() || root["gid"].asText()->empty())
    return "the change file names no profile (\"gid\")";
  const Map* data = root["data"].asMap();
  if (!data) return "\"data\" is not a dictionary of ticks";
  for (const auto& [tag, entry] : *data) {
    std::string problem = entryProblem(entry);
    if (!problem.empty()) return problem;
  }
  return {};
}

void applyTicks(Store& store, const Map& root, std::optional<Date> receipt) {
  const std::string gid = root["gid"].text();
  for (const auto& [tag, entry] : *root["data"].asMap()) {
    if (receipt && *entry["date"].asDate() < *receipt) continue;
    setCheckData(store, static_cast<int>(entry["seltypeid"].intValue()), entry["tagguid"].text(),
                 entry["state"].boolValue(), gid);
  }
}

}  // namespace lad::cloud
