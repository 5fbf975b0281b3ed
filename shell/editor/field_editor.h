// The generic field editor: a caption over rows of input, each row with a "field" taking its
// value from the form's value dictionary. Closing normalises and checks the rows; a row may
// open a nested editor whose rows become that row's value when it is committed.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "core/context.h"
#include "shell/editor/editor_view.h"
#include "shell/message_box.h"

namespace lad::shell {

class FieldEditor {
 public:
  FieldEditor(const Context& context, std::string caption, List rows, const Map& values);

  const std::string& caption() const { return caption_; }
  const List& rows() const { return rows_; }
  // The row of a field, or nullptr.
  const Map* row(std::string_view field) const;
  // The text of a field's value; "" for a field the form does not have.
  std::string text(std::string_view field) const;

  // The user changed a field; false for a field the form does not have. A list's entries are
  // ticked as the value says, and a period's start, end and length are kept in step.
  bool change(std::string_view field, Value source);
  // Sets another key of a field's row than its value: a list's entries ("listdata"), a
  // caption worked out from other rows. False for a field the form does not have.
  bool setRowKey(std::string_view field, std::string_view key, Value value);

  // Normalises the rows and checks them: the message of the first required row left empty,
  // or nullopt when the rows are ready to be taken.
  std::optional<MessageBox> close();

  // Opens an editor over the row of field: its rows, once committed, make the row's value
  // as a value of kind tp would be made, with pos the entry they replace (-1 a new one).
  bool openNested(std::string_view field, int tp, int pos, FieldEditor editor);
  FieldEditor* nested();
  // Closes the nested editor into its row; a refusal leaves it open and says why.
  std::optional<MessageBox> commitNested();

  // The editor's node, with the nested editor's node over it while one is open.
  Value view() const;

 private:
  struct Nested;
  Map* find(std::string_view field);

  const Context& context_;
  std::string caption_;
  List rows_;
  std::unique_ptr<Nested> nested_;
  mutable PhotoPreviews previews_;
};

struct FieldEditor::Nested {
  std::string field;
  int tp;
  int pos;
  FieldEditor editor;
};

}  // namespace lad::shell
