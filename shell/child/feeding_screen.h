// The feedings of a child's day: the list of what the child ate with the day's totals, a form
// per kind of feeding, and for the breast a timer per side that runs on the installation's
// clock, so that it keeps time while the page is closed. "Готово" stores the day's feedings.
#pragma once

#include <optional>
#include <string>

#include "shell/application.h"
#include "shell/editor/field_editor.h"
#include "shell/screen.h"
#include "shell/screen_host.h"
#include "shell/views/diary.h"

namespace lad::shell {

class FeedingScreen : public Screen {
 public:
  // A breast timer left running for the child opens its form at once.
  FeedingScreen(Application& app, ScreenHost& host, std::string gid, Date day);

  Value view() override;
  // "field:add<kind>" opens a new feeding, "field:feed<n>" offers to remove one; in the breast
  // form "field:startleft" and "field:startright" start and stop the side's timer.
  EventResult tap(std::string_view target) override;
  EventResult change(std::string_view target, const Value& value) override;
  bool closed() const override { return closed_; }

 private:
  FieldEditor listForm() const;
  void openForm(int kind);
  EventResult tapForm(std::string_view target);
  EventResult toggleTimer(std::string_view side);
  void showTimer();
  void commitForm();
  void askRemoval(std::size_t index);

  Application& app_;
  ScreenHost& host_;
  std::string gid_;
  Date day_;
  List feedings_;
  bool changed_ = false;
  int formKind_ = 0;
  std::optional<FieldEditor> form_;
  bool closed_ = false;
};

// The day editor's row of the feedings: each feeding's time and line.
DayRowView feedingDayRow(Application& app, const std::string& gid, Date day, std::string id);

}  // namespace lad::shell
