// The editor of one field of a day, opened over the day editor: the form of the field's kind
// with its present value, or one entry of a multi-entry field. A dictionary list in the form
// takes new entries through a dialog of its own; a dictionary choice row opens a chooser over
// the form, and rows picked on wheels ask the day editor to open their picker.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "core/value.h"
#include "shell/application.h"
#include "shell/editor/field_editor.h"
#include "shell/message_box.h"
#include "shell/popup.h"

namespace lad::shell {

class DayRowForm {
 public:
  // pos: the entry of a multi-entry field to edit, -1 for a new one or a single value; day:
  // the diary day. Nullopt for a field without a form in this build, or an entry the value
  // lacks.
  static std::optional<DayRowForm> open(Application& app, const Map& row, int pos, Date day);

  Value view() const;

  enum class Outcome { kOpen, kCancelled, kDone, kPick };
  // A tap on one of the form's buttons. A refusal keeps it open and comes back as a message.
  // kPick: a row wants its picker, which takePick gives.
  Outcome tap(std::string_view target, std::optional<MessageBox>* refusal);
  bool change(std::string_view target, const Value& value);

  // The picker a row asked for, and the target its answer is to be changed into.
  struct Pick {
    std::unique_ptr<Popup> popup;
    std::string target;
  };
  Pick takePick() { return std::move(pick_); }

  // The field's new stored value, once done.
  const std::string& value() const { return value_; }

 private:
  struct Chooser {
    std::string field;  // the dictionary choice row it answers
    FieldEditor editor;
  };

  DayRowForm(Application& app, int kind, int pos, std::string old, FieldEditor editor);
  FieldEditor& top();
  void fillEntries(FieldEditor& editor);
  void showChoices();
  void freezeIntakeTimes(std::string_view changed);
  Outcome tapRow(std::string_view target);
  Outcome openAddition();
  void openChooser(std::string_view field);
  Outcome commit(std::optional<MessageBox>* refusal);
  Outcome commitChoice(std::optional<MessageBox>* refusal);
  Outcome commitAddition(std::optional<MessageBox>* refusal);

  Application* app_;
  int kind_;
  int pos_;
  std::string old_;
  FieldEditor editor_;
  std::optional<Chooser> chooser_;
  std::optional<FieldEditor> addition_;  // the dialog of a new dictionary entry
  Pick pick_;
  std::string value_;
};

// The value without its entry at pos: taken out of a JSON list, or emptied when it is not one.
std::string withoutEntry(std::string_view value, int pos);

}  // namespace lad::shell
