// The editor of one field of a diary day: it opens on the stored value of the day and, once
// the rows pass their checks, replaces that value with the one made of the rows.
#pragma once

#include <optional>
#include <string>

#include "shell/application.h"
#include "shell/editor/detail_forms.h"

namespace lad::shell {

class DayFieldEdit {
 public:
  // The form's parentflag is the field's kind; its dat is read from the day. Nullopt for a
  // kind that has no form.
  static std::optional<DayFieldEdit> open(Application& app, std::string gid, Date day,
                                          std::string type, DetailForm form);

  FieldEditor& editor() { return editor_; }

  // Stores the day's new value; a refused check keeps the editor open and says why.
  std::optional<MessageBox> commit();

 private:
  DayFieldEdit(Application& app, std::string gid, Date day, std::string type, int kind,
               std::string old, FieldEditor editor);

  Application& app_;
  std::string gid_;
  Date day_;
  std::string type_;
  int kind_;
  std::string old_;
  FieldEditor editor_;
};

}  // namespace lad::shell
