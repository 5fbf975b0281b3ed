// The diary: the days of a profile under their week, month or calendar-month headings, with a
// search, a year to choose in the child's and the woman's diary, and the way into each day.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/value.h"
#include "health/cycle_days.h"
#include "shell/application.h"
#include "shell/diary/diary_state.h"
#include "shell/screen.h"
#include "shell/screen_host.h"
#include "shell/views/diary.h"

namespace lad::shell {

class DiaryList : public Screen {
 public:
  // fromMenu: opened by the user, so the year goes back to the present one.
  DiaryList(Application& app, ScreenHost& host, std::string gid, DiaryState& state, bool fromMenu);

  Value view() override;
  EventResult tap(std::string_view target) override;
  // The search field sends its text when the search is run or cancelled.
  EventResult change(std::string_view target, const Value& value) override;

 private:
  EventResult tapControl(std::string_view target);
  void load();
  void updateSearch();
  const List& rowsOf(std::size_t day);
  std::optional<std::size_t> dayAt(std::string_view target, std::string_view prefix) const;
  std::size_t scrollPlace() const;
  void placeWindow(std::size_t place);
  List items();
  std::optional<YearView> yearView() const;
  EventResult changeYear(int by);
  EventResult openDay(Date day);
  EventResult openCalendar(Date day);
  void askDeletion(std::size_t day);

  Application& app_;
  ScreenHost& host_;
  std::string gid_;
  DiaryState& state_;
  Map setup_;
  List listData_;
  List days_;                              // every day loaded, strings made
  std::vector<std::optional<List>> rows_;  // each day's field rows, made when needed
  std::vector<std::size_t> matches_;       // the days shown, as places in days_
  List sections_;
  Map todayPlace_;
  std::vector<health::CycleDay> cycle_;  // the woman's year, in her diary only
};

// The day of a target "<prefix>dd.MM.yyyy".
std::optional<Date> targetDay(const Context& context, std::string_view target,
                              std::string_view prefix);
std::string dayTarget(const Context& context, std::string_view prefix, Date day);

}  // namespace lad::shell
