// The nodes of the woman's cycle: the mark of a day in the diary's cells and the calendar of a
// year with each day in the colour of its phase.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/value.h"
#include "shell/views/pages.h"

namespace lad::shell {

// A day's place in the cycle: its phase ("period", "ovulation", "pregnancy" or "") and a short
// text; tapping it opens the calendar.
struct CycleMarkView {
  std::string phase;
  bool open = false;  // the phase's closing day is not marked (yet)
  std::string caption;
  std::string target;

  Value toValue() const;
};

struct CycleDayView {
  int day = 0;  // of the month
  std::string phase;
  bool open = false;
  bool marked = false;  // the woman marked this very day
  int cycleDay = 0;     // 0: not known
  bool today = false;
  std::string target;  // opens the day in the editor

  Value toValue() const;
};

struct CycleMonthView {
  std::string name;
  int offset = 0;  // empty places before the 1st in a week that starts on Monday
  std::vector<CycleDayView> days;

  Value toValue() const;
};

struct CycleLegendView {
  std::string phase;
  bool open = false;
  std::string caption;

  Value toValue() const;
};

// The calendar of one year: its selector, today's place in the cycle, the months, the legend,
// and the reminder that the marks are the woman's own. `close` is there when the calendar was
// opened from the diary.
struct CycleCalendarView {
  static constexpr std::string_view kKind = "cycleCalendar";
  std::string title;
  YearView year;
  std::string summary;
  std::string empty;  // what to do when the year has no marks, or ""
  std::vector<std::string> weekdays;
  std::vector<CycleMonthView> months;
  std::vector<CycleLegendView> legend;
  std::string note;
  std::optional<ButtonView> close;

  Value toValue() const;
};

}  // namespace lad::shell
