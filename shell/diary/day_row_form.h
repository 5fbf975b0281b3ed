// The editor of one field of a day, opened over the day editor: the form of the field's kind
// with its present value, or one entry of a multi-entry field. A dictionary list in the form
// takes new entries through a dialog of its own.
#pragma once

#include <optional>
#include <string>

#include "core/value.h"
#include "shell/application.h"
#include "shell/editor/field_editor.h"
#include "shell/message_box.h"

namespace lad::shell {

class DayRowForm {
 public:
  // pos: the entry of a multi-entry field to edit, -1 for a new one or a single value. Nullopt
  // for a field without a form in this build, or an entry the value lacks.
  static std::optional<DayRowForm> open(Application& app, const Map& row, int pos);

  Value view() const;

  enum class Outcome { kOpen, kCancelled, kDone };
  // A tap on one of the form's buttons. A refusal keeps it open and comes back as a message.
  Outcome tap(std::string_view target, std::optional<MessageBox>* refusal);
  bool change(std::string_view target, const Value& value);

  // The field's new stored value, once done.
  const std::string& value() const { return value_; }

 private:
  DayRowForm(Application& app, int kind, int pos, std::string old, int listid, FieldEditor editor);
  void fillEntries();
  Outcome commit(std::optional<MessageBox>* refusal);
  Outcome commitAddition(std::optional<MessageBox>* refusal);

  Application* app_;
  int kind_;
  int pos_;
  std::string old_;
  int listid_;
  FieldEditor editor_;
  std::optional<FieldEditor> addition_;  // the dialog of a new dictionary entry
  std::string value_;
};

// The value without its entry at pos: taken out of a JSON list, or emptied when it is not one.
std::string withoutEntry(std::string_view value, int pos);

}  // namespace lad::shell
