// A field editor on a screen of its own: the browser's changes go to its fields, a date or time
// row opens its wheel, and the right button hands the checked rows to the caller's action.
#pragma once

#include <functional>
#include <optional>

#include "shell/editor/field_editor.h"
#include "shell/screen.h"
#include "shell/screen_host.h"

namespace lad::shell {

class EditorScreen : public Screen {
 public:
  // Takes the rows once they pass their checks; a message keeps the editor open.
  using Action = std::function<std::optional<MessageBox>(const FieldEditor&)>;

  EditorScreen(const Context& context, ScreenHost& host, FieldEditor editor, Action ok);

  Value view() override { return editor_.view(); }
  EventResult tap(std::string_view target) override;
  EventResult change(std::string_view target, const Value& value) override;
  bool closed() const override { return closed_; }

 private:
  EventResult ok();

  const Context& context_;
  ScreenHost& host_;
  FieldEditor editor_;
  Action ok_;
  bool closed_ = false;
};

}  // namespace lad::shell
