// The woman's calendar of a year: every day in the colour of the phase her marks put it in,
// the day of her cycle, today's place, and a day opened in the editor by a touch. It is the
// "Женщина" page of the cycle edition, and opens over the diary from a day's cycle mark.
#pragma once

#include <string>
#include <vector>

#include "health/cycle_days.h"
#include "shell/application.h"
#include "shell/diary/diary_state.h"
#include "shell/screen.h"
#include "shell/screen_host.h"

namespace lad::shell {

class CycleCalendar : public Screen {
 public:
  // closable: opened over another screen, with a button that closes it. fromMenu: the user
  // brought the page up, so the year goes back to the present one.
  CycleCalendar(Application& app, ScreenHost& host, std::string gid, DiaryState& state,
                bool closable, bool fromMenu);

  Value view() override;
  EventResult tap(std::string_view target) override;
  bool closed() const override { return closed_; }

 private:
  int presentYear() const;
  void load();
  EventResult changeYear(int by);

  Application& app_;
  ScreenHost& host_;
  std::string gid_;
  DiaryState& state_;
  bool closable_;
  bool closed_ = false;
  std::vector<health::CycleDay> days_;
  std::string summary_;  // where today stands
};

}  // namespace lad::shell
