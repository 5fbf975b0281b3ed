// The items of the doctor's plan that are due on a day of the pregnancy, and the week's notices
// of the main menu that come from the plan and from the notice file.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/value.h"

namespace lad {
class Store;
}

namespace lad::health {

// Appends to `data` the day's texts (`indaycomment`) of the items of the plan file `file`
// (".jsn" in the content folder) that are due: begun (`planestart`) in the running week of the
// pregnancy or before it, and not ticked in the check-list `seltypeid` of the profile.
void loadIndayFromFile(Store& store, std::string_view file, std::vector<std::string>& data,
                       int seltypeid, const std::string& gid, Date todate);

// The due items of both plan files, the visits first, then the analyses.
std::vector<std::string> dueDoctorItems(Store& store, Date day, const std::string& gid);

// The notices of main menu group 4, 5 or 7 in week `time` of the pregnancy; none outside the
// pregnancy editions, and none of groups 4 and 5 in a week the user dismissed.
std::vector<std::string> getTodayWarning(Store& store, int group, int time, const std::string& gid);

}  // namespace lad::health
