#include "cloud/cloud_writers.h"

#include <cstdio>

#include "cloud/change_content.h"
#include "cloud/cloud_pass.h"
#include "cloud/tick_change.h"
#include "core/context.h"
#include "store/store.h"

namespace lad::cloud {

namespace {

bool syncing(const Store& store) {
  return store.context().values().cloudMode == kCloudSync;
}

// A change that could not be written stays here; the log and the error mail say why.
void report(Store& store, bool written, const std::string& error) {
  if (written) return;
  store.context().values().cloudError = error;
  std::fprintf(stderr, "cloud: %s\n", error.c_str());
}

}  // namespace

void cloudDayChanged(Store& store, Date day, const std::string& gid) {
  if (!syncing(store)) return;
  std::string error;
  report(store, dataToCloud(store, kChangeDay, day, gid, &error).has_value(), error);
}

void cloudProfileChanged(Store& store, const std::string& gid) {
  if (!syncing(store)) return;
  std::string error;
  report(store, dataToCloud(store, kChangeProfile, std::nullopt, gid, &error).has_value(), error);
}

void cloudTickChanged(Store& store, bool ticked, const std::string& tagguid, int seltypeid,
                      const std::string& gid) {
  if (!syncing(store)) return;
  Map extra;
  extra.set("seltypeid", seltypeid);
  std::string error;
  const auto name =
      keyValueToCloud(store.context(), ticked ? kTicked : kUnticked, tagguid, extra, gid, &error);
  report(store, name.has_value(), error);
}

}  // namespace lad::cloud
