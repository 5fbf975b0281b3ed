// The settings of a child: a new one ("Новый ребенок") or an existing one ("Настройки"), with
// the child's name, birth, sex, blood group, measures at birth, allergies and portrait, saved
// to the child's profile row or removed after a question.
#pragma once

#include <optional>
#include <string>

#include "shell/application.h"
#include "shell/settings_dialog.h"

namespace lad::shell {

class ChildDialog : public SettingsDialog {
 public:
  // With a guid that child's settings; without one a new child born today.
  ChildDialog(Application& app, std::optional<std::string> gid);

  const FieldEditor& editor() const override { return editor_; }
  // A new portrait comes as its bytes, and null takes the portrait away.
  std::optional<MessageBox> change(std::string_view field, const Value& source) override;
  std::optional<MessageBox> close() override { return editor_.close(); }
  // Saves (or removes) the child and returns its guid; a new child gets its guid here. A birth
  // time that is not "HH:mm" keeps the one stored before.
  std::string finish(std::string* photoError) override;

  std::optional<Question> removalQuestion() const override;
  void confirmRemoval() override { removed_ = true; }

 private:
  void fillEntries();
  Map childSetup(const std::string& gid, std::string* photoError);

  Application& app_;
  std::optional<std::string> gid_;
  FieldEditor editor_;
  bool removed_ = false;
};

}  // namespace lad::shell
