#include "shell/reminder_schedule.h"

#include <algorithm>

namespace lad::shell {

std::vector<health::PlannedReminder> ReminderSchedule::takeDue(Store& store, Date now,
                                                               std::uint64_t dataVersion,
                                                               bool pillsAlarm) {
  const auto firstLater = std::find_if(
      plan_.begin(), plan_.end(), [now](const health::PlannedReminder& r) { return r.at > now; });
  std::vector<health::PlannedReminder> due(plan_.begin(), firstLater);
  plan_.erase(plan_.begin(), firstLater);
  if (stale_ || dataVersion != dataVersion_ || pillsAlarm != pillsAlarm_) {
    plan_ = health::planReminders(store, now);
    stale_ = false;
    dataVersion_ = dataVersion;
    pillsAlarm_ = pillsAlarm;
  }
  return due;
}

}  // namespace lad::shell
