#include "shell/editor/editor_screen.h"

#include "shell/editor/row_picker.h"
#include "shell/views/editors.h"
#include "shell/wheel_picker.h"

namespace lad::shell {

namespace {

constexpr int kConsent = 1;

}  // namespace

EditorScreen::EditorScreen(const Context& context, ScreenHost& host, FieldEditor editor, Action ok)
    : context_(context), host_(host), editor_(std::move(editor)), ok_(std::move(ok)) {}

EventResult EditorScreen::tap(std::string_view target) {
  if (target == kEditorCancel) {
    closed_ = true;
    return {};
  }
  if (target == kEditorOk) return ok();
  const std::string field(targetField(target));
  const Map* row = editor_.row(field);
  if (!row || ((*row)["tp"].intValue() != kDate && (*row)["tp"].intValue() != kTime))
    return EventResult::refused("the editor has no button " + std::string(target));
  host_.openPopup(rowPicker(context_, *row), [this, field](const PopupAnswer& answer) {
    if (answer.button != kConsent) return EventResult();
    return change(fieldTarget(field), answer.value);
  });
  return {};
}

EventResult EditorScreen::change(std::string_view target, const Value& value) {
  if (!editor_.change(targetField(target), value))
    return EventResult::refused("the editor has no field " + std::string(target));
  return {};
}

EventResult EditorScreen::ok() {
  auto message = editor_.close();
  if (!message) message = ok_(editor_);
  if (message) {
    host_.showMessage(std::move(*message));
    return {};
  }
  closed_ = true;
  EventResult result;
  result.installationChanged = true;
  return result;
}

}  // namespace lad::shell
