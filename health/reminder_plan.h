// The plan of one-shot notifications: the free reminders of the days to come and, with the
// setting pillsAlarm on, the intakes of the medicine courses. It is thrown away and worked out
// afresh from the diary whenever something that feeds it changes; whoever delivers the
// notifications takes the whole plan each time.
#pragma once

#include <string>
#include <vector>

#include "core/value.h"

namespace lad {
class Store;
}

namespace lad::health {

struct PlannedReminder {
  Date at;           // when it fires
  std::string body;  // what it says
  Date day;          // the diary day it belongs to, which it opens
  std::string gid;   // the profile of that day

  bool operator==(const PlannedReminder&) const = default;
};

// The text of a reminder left without one, by edition.
std::string defaultReminderText(int appid);

// Both take at most 20 days with values from today on, whatever the profile, and plan only what
// lies after `now`. A value that is not JSON plans nothing.
std::vector<PlannedReminder> updateNoteAlarms(Store& store, Date now);
std::vector<PlannedReminder> updatePillsAlarms(Store& store, const List& listData, Date now);

// The reminders, and the intakes when pillsAlarm is on, ordered by time.
std::vector<PlannedReminder> planReminders(Store& store, Date now);

}  // namespace lad::health
