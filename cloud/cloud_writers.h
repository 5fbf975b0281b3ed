// What the screens call after they changed the diary, so that the change reaches the cloud
// folder. Each call does nothing unless the installation syncs through the folder; a change
// made in another mode travels only with the next copy of everything.
#pragma once

#include <string>

#include "core/value.h"

namespace lad {
class Store;
}  // namespace lad

namespace lad::cloud {

// A day saved, or deleted: the whole day is written again (a deleted one with no records).
void cloudDayChanged(Store& store, Date day, const std::string& gid);
// A profile created or edited.
void cloudProfileChanged(Store& store, const std::string& gid);
// A check-list item of the list `seltypeid` ticked or unticked.
void cloudTickChanged(Store& store, bool ticked, const std::string& tagguid, int seltypeid,
                      const std::string& gid);

}  // namespace lad::cloud
