// What the settings screen edits: a profile's rows in the field editor, the rules applied while
// the user types, and the save at the end; a profile that can be removed asks first.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "shell/editor/field_editor.h"
#include "shell/message_box.h"
#include "shell/question.h"

namespace lad::shell {

class SettingsDialog {
 public:
  virtual ~SettingsDialog() = default;

  virtual const FieldEditor& editor() const = 0;
  // The user changed a field; a refusal comes back as a message.
  virtual std::optional<MessageBox> change(std::string_view field, const Value& source) = 0;
  // The message of the first required row left empty, or nullopt when the rows can be saved.
  virtual std::optional<MessageBox> close() = 0;
  // Saves the profile and returns its guid; a picture that cannot be read says why.
  virtual std::string finish(std::string* photoError) = 0;

  // The question before a removal, for a profile that can be removed.
  virtual std::optional<Question> removalQuestion() const { return std::nullopt; }
  virtual void confirmRemoval() {}
};

// What the settings dialogs with a portrait share: the stored portrait among the values the
// rows start from, a new picture (or none) marked to be written when the dialog is finished,
// and the button and question before the profile is removed.
void startWithPortrait(const Context& context, Map& values, const std::optional<std::string>& gid);
void markPortraitChange(FieldEditor& editor, const Value& picture);
// The last row of an existing profile's dialog: "Удалить учетную запись".
Value removalButton(const Context& context);
Question profileRemovalQuestion(const Context& context);

}  // namespace lad::shell
