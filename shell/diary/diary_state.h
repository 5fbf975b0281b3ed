// What the diary list keeps for a browser across its rebuilds: the year shown, the search, the
// day last edited, and the window of days the browser has been sent; the year of the woman's
// cycle calendar, and the day of the day schedule.
#pragma once

#include <optional>
#include <string>

#include "core/dates.h"

namespace lad::shell {

struct DiaryState {
  std::string gid;                  // the profile the rest belongs to
  int year = 0;                     // child: year of life from 1; woman: calendar year; 0 unset
  std::string search;               // the text of the last search, "" for none
  std::optional<Date> lastEdited;   // the list comes back to this day once
  std::size_t first = 0;            // the first day sent, as a place among the days shown
  std::size_t count = 0;            // how many days from there; 0: place the window anew
  int calendarYear = 0;             // the woman's cycle calendar: the year shown; 0 unset
  std::optional<Date> scheduleDay;  // the day schedule's day; unset: today

  // Starts afresh for another profile.
  void keepFor(const std::string& profile) {
    if (profile == gid) return;
    *this = DiaryState();
    gid = profile;
  }
};

}  // namespace lad::shell
