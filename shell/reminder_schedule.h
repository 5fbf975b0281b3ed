// The reminders on their way to the user: the plan worked out from the diary, each kept until
// its minute comes. The plan is worked out again when the diary or the medicine switch changed,
// or a browser came up, from the last look on; what fell due since then in the old plan or in
// the new one comes once, so that no new plan drops a reminder whose minute has just come.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "health/reminder_plan.h"

namespace lad {
class Store;
}

namespace lad::shell {

class ReminderSchedule {
 public:
  // The plan is worked out again at the next look.
  void invalidate() { stale_ = true; }

  // The reminders whose time has come by now, in time order; the plan is brought up to date
  // with the diary of that version and the switch's state first.
  std::vector<health::PlannedReminder> takeDue(Store& store, Date now, std::uint64_t dataVersion,
                                               bool pillsAlarm);

  // What is planned from now on.
  const std::vector<health::PlannedReminder>& plan() const { return plan_; }

 private:
  std::vector<health::PlannedReminder> plan_;
  std::optional<Date> lastLook_;  // the `now` of the last takeDue
  bool stale_ = true;
  std::uint64_t dataVersion_ = 0;
  bool pillsAlarm_ = false;
};

}  // namespace lad::shell
