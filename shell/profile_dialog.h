// The settings of a pregnancy: a new one ("Новая беременность") or an existing one
// ("Настройки"), as the rows of the field editor, with the date and body index rules applied
// while the user types, and saving or removing the profile at the end.
#pragma once

#include <optional>
#include <string>

#include "health/pregnancy_dates.h"
#include "shell/application.h"
#include "shell/settings_dialog.h"

namespace lad::shell {

class ProfileDialog : public SettingsDialog {
 public:
  // Editor codes: the active profile changed, or a new profile.
  static constexpr int kChangedProfile = 1000;
  static constexpr int kNewProfile = 1001;

  // With a guid the profile's settings; without one a new pregnancy starting today.
  ProfileDialog(Application& app, std::optional<std::string> gid);

  const std::string& caption() const { return editor_.caption(); }
  int code() const { return code_; }
  const List& rows() const { return editor_.rows(); }
  // The row of a field, or nullptr.
  const Map* row(std::string_view field) const { return editor_.row(field); }
  const FieldEditor& editor() const override { return editor_; }

  // The user changed a field. Dates keep each other consistent and height and weight recount
  // the body index; a refused conception date comes back as a message. A new portrait comes
  // as its bytes, and null takes the portrait away.
  std::optional<MessageBox> change(std::string_view field, const Value& source) override;

  // The question asked before a removal, and the removal it leads to on consent.
  std::optional<Question> removalQuestion() const override;
  void confirmRemoval() override;

  // Brings the rows into their stored forms and checks them, as every editor does on closing:
  // the message of the first required row left empty, or nullopt when they can be saved.
  std::optional<MessageBox> close() override { return editor_.close(); }

  // Saves (or removes) the profile and returns its guid; a new pregnancy gets its guid here.
  // A picture that cannot be read leaves the portrait as it was and says why in photoError.
  std::string finish(std::string* photoError = nullptr) override;

 private:
  void changePhoto(const Value& picture);
  void correctDates(health::PregnancyDateField changed, std::optional<MessageBox>& refusal);
  void correctBodyIndex();

  Application& app_;
  std::optional<std::string> gid_;
  int code_;
  FieldEditor editor_;
  bool removed_ = false;
};

}  // namespace lad::shell
