// The woman's settings in the cycle edition: her date of birth, height and build, and the times
// of her five meals, saved to her profile row.
#pragma once

#include <string>

#include "shell/application.h"
#include "shell/settings_dialog.h"

namespace lad::shell {

class WomanDialog : public SettingsDialog {
 public:
  WomanDialog(Application& app, std::string gid);

  const FieldEditor& editor() const override { return editor_; }
  std::optional<MessageBox> change(std::string_view field, const Value& source) override;
  std::optional<MessageBox> close() override { return editor_.close(); }
  std::string finish(std::string* photoError) override;

 private:
  std::string meals() const;

  Application& app_;
  std::string gid_;
  FieldEditor editor_;
};

}  // namespace lad::shell
