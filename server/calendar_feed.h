// The installation's reminders as an iCalendar feed (RFC 5545) for a phone's calendar app: each
// planned reminder an event at its minute with an alarm that shows its text.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "health/reminder_plan.h"

namespace lad::server {

// `stamp` is when the feed is made; `name` the calendar's name in the app.
std::string calendarFeed(const std::vector<health::PlannedReminder>& plan, Date stamp,
                         std::string_view name);

}  // namespace lad::server
