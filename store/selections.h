// Ticks of the check-lists: which items of a list a profile has ticked. Only the pregnancy and
// child editions keep them; in the woman's edition both operations do nothing.
#pragma once

#include <string>
#include <vector>

namespace lad {

class Store;

// Ticks the item of the check-list for the profile, or takes the tick away.
void setCheckData(Store& store, int seltypeid, const std::string& tagguid, bool check,
                  const std::string& gid);

// The guids of the items of the check-list that the profile has ticked.
std::vector<std::string> loadCheckData(Store& store, int seltypeid, const std::string& gid);

}  // namespace lad
