// The ticks of the check-lists between installations: each installation keeps one file per
// profile with its own ticks ("CLOUD-3-<profile>-<installation>.dat"), so no two installations
// ever write the same file. Each entry carries the moment of its change.
#pragma once

#include <optional>
#include <string>

#include "core/value.h"

namespace lad {
class Context;
class Store;
}  // namespace lad

namespace lad::cloud {

// The states that callers pass: a tick, and its removal.
enum TickState { kTicked = 1, kUnticked = 2 };

// Enters the tick of the item into this installation's file of the profile (with the caller's
// entries, such as "seltypeid") and gives the file's name. An existing file that cannot be read
// is not replaced: nullopt and the reason then, and the tick stays unsent.
std::optional<std::string> keyValueToCloud(Context& context, int state, const std::string& tagguid,
                                           const Map& extra, const std::string& gid,
                                           std::string* error);

// Empty when the root of a file of ticks can be applied; otherwise what is wrong with it.
std::string ticksProblem(const Value& root);

// Applies the entries of a checked root that are not older than the receipt of the file.
void applyTicks(Store& store, const Map& root, std::optional<Date> receipt);

}  // namespace lad::cloud
