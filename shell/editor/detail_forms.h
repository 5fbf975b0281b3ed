// The forms the field editor opens for the single-valued fields of a day, by the field kind
// (or one of the editor's own form numbers): the rows under the message line and the value
// dictionary they start from, made from the present value.
#pragma once

#include <optional>

#include "shell/editor/field_editor.h"

namespace lad::shell {

struct DetailForm {
  int parentflag;
  std::string caption;
  std::string msg;    // the first row, a text
  std::string dat;    // the present value
  int cotype = 0;     // the dictionary list of a list row
  bool edit = false;  // the list row may add entries
};

// The field of the button under a list that adds an entry to its dictionary.
inline constexpr std::string_view kAddEntryField = "add";

// The editor of the form; nullopt for a form number that has none.
std::optional<FieldEditor> detailPrepare(const Context& context, const DetailForm& form);

// The dialog that adds an entry to a dictionary list, by the list row's listedittype.
std::optional<FieldEditor> addDialog(const Context& context, int listedittype);

}  // namespace lad::shell
