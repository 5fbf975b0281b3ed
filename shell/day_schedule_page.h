// The page "Расписание на день": one day as a timetable of reminders, intakes around the meals,
// a running diet and the doctor's due items, the days before and after, and the dialog of the
// meal times.
#pragma once

#include <string>

#include "shell/application.h"
#include "shell/diary/diary_state.h"
#include "shell/screen.h"
#include "shell/screen_host.h"

namespace lad::shell {

class DaySchedulePage : public Screen {
 public:
  // The day shown is kept in the session's state; fromMenu brings it back to today.
  DaySchedulePage(Application& app, ScreenHost& host, std::string gid, DiaryState& state,
                  bool fromMenu);

  Value view() override;
  EventResult tap(std::string_view target) override;

 private:
  Date today() const;

  Application& app_;
  ScreenHost& host_;
  std::string gid_;
  DiaryState& state_;
};

}  // namespace lad::shell
