// The dialog "Время приема пищи" of the day schedule: the times of the five meals, each an exact
// "HH:mm", stored for every profile of the edition.
#pragma once

#include <string>

#include "shell/application.h"
#include "shell/settings_dialog.h"

namespace lad::shell {

class MealTimesDialog : public SettingsDialog {
 public:
  MealTimesDialog(Application& app, std::string gid);

  const FieldEditor& editor() const override { return editor_; }
  // A time that is not "HH:mm" is refused with the editor's message and leaves the field as it
  // was.
  std::optional<MessageBox> change(std::string_view field, const Value& source) override;
  std::optional<MessageBox> close() override { return editor_.close(); }
  // Stores the five times; the reminders and the schedule follow the change of data.
  std::string finish(std::string* photoError) override;

 private:
  Application& app_;
  std::string gid_;
  FieldEditor editor_;
};

}  // namespace lad::shell
