// The screen of a profile's settings (a pregnancy's, or the woman's): the dialog's rows in the
// field editor, saved with "Готово", left with "Отменить", and a pregnancy removed after a
// question.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "shell/editor/editor_view.h"
#include "shell/profile_dialog.h"
#include "shell/screen.h"
#include "shell/screen_host.h"

namespace lad::shell {

class ProfileEditor : public Screen {
 public:
  // With a guid the settings of that pregnancy; without one a new pregnancy.
  ProfileEditor(Application& app, ScreenHost& host, std::optional<std::string> gid);
  ProfileEditor(Application& app, ScreenHost& host, std::unique_ptr<SettingsDialog> dialog);

  Value view() override;
  EventResult tap(std::string_view target) override;
  // "field:<name>" with the field's new value; the photograph comes as a data URL, or null.
  EventResult change(std::string_view target, const Value& value) override;
  bool closed() const override { return closed_; }

 private:
  EventResult save();
  void pickDate(std::string field, const Map& row);
  void askRemoval();
  EventResult finish();

  Application& app_;
  ScreenHost& host_;
  std::unique_ptr<SettingsDialog> dialog_;
  PhotoPreviews previews_;
  bool closed_ = false;
};

}  // namespace lad::shell
