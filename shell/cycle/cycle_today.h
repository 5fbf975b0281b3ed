// The cycle edition's "Сегодня": the date, where today stands in the woman's cycle, today's own
// mark, and the ways to mark today and to see the year's calendar.
#pragma once

#include <optional>
#include <string>

#include "health/cycle_days.h"
#include "shell/application.h"
#include "shell/diary/diary_state.h"
#include "shell/screen.h"
#include "shell/screen_host.h"

namespace lad::shell {

class CycleToday : public Screen {
 public:
  CycleToday(Application& app, ScreenHost& host, std::string gid, DiaryState& state);

  Value view() override;
  EventResult tap(std::string_view target) override;

 private:
  Application& app_;
  ScreenHost& host_;
  std::string gid_;
  DiaryState& state_;
  std::optional<health::CycleDay> today_;
};

}  // namespace lad::shell
