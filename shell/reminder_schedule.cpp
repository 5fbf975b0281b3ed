#include "shell/reminder_schedule.h"

#include <algorithm>

namespace lad::shell {

namespace {

// Moves the reminders of the plan whose time has come by `now` to the end of `due`.
void takeUpTo(std::vector<health::PlannedReminder>& plan, Date now,
              std::vector<health::PlannedReminder>& due) {
  const auto firstLater = std::find_if(
      plan.begin(), plan.end(), [now](const health::PlannedReminder& r) { return r.at > now; });
  due.insert(due.end(), plan.begin(), firstLater);
  plan.erase(plan.begin(), firstLater);
}

// Adds to `due` what `fresh` holds beyond it (a reminder in both counts once), in time order.
void addOnce(std::vector<health::PlannedReminder>& due,
             std::vector<health::PlannedReminder> fresh) {
  std::vector<health::PlannedReminder> given = due;
  for (health::PlannedReminder& r : fresh) {
    const auto same = std::find(given.begin(), given.end(), r);
    if (same != given.end())
      given.erase(same);
    else
      due.push_back(std::move(r));
  }
  std::stable_sort(due.begin(), due.end(),
                   [](const auto& a, const auto& b) { return a.at < b.at; });
}

}  // namespace

std::vector<health::PlannedReminder> ReminderSchedule::takeDue(Store& store, Date now,
                                                               std::uint64_t dataVersion,
                                                               bool pillsAlarm) {
  std::vector<health::PlannedReminder> due;
  takeUpTo(plan_, now, due);
  if (stale_ || dataVersion != dataVersion_ || pillsAlarm != pillsAlarm_) {
    // The new plan starts at the last look: a reminder written since then whose minute came
    // before this look is due now. What the old plan gave for the same span comes once.
    plan_ = health::planReminders(store, std::min(lastLook_.value_or(now), now));
    std::vector<health::PlannedReminder> fresh;
    takeUpTo(plan_, now, fresh);
    addOnce(due, std::move(fresh));
    stale_ = false;
    dataVersion_ = dataVersion;
    pillsAlarm_ = pillsAlarm;
  }
  lastLook_ = now;
  return due;
}

}  // namespace lad::shell
