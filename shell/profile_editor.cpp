#include "shell/profile_editor.h"

#include "cloud/cloud_writers.h"
#include "shell/editor/detail_rows.h"
#include "shell/editor/field_check.h"
#include "shell/editor/row_picker.h"

namespace lad::shell {

namespace {

constexpr int kConsent = 1;  // "Да" of the removal question, the tick of a picker
constexpr std::string_view kRemoveField = "remove";
constexpr std::string_view kUnreadablePhoto = "Не удалось прочитать фотографию";

}  // namespace

ProfileEditor::ProfileEditor(Application& app, ScreenHost& host, std::optional<std::string> gid)
    : ProfileEditor(app, host, std::make_unique<ProfileDialog>(app, std::move(gid))) {}

ProfileEditor::ProfileEditor(Application& app, ScreenHost& host,
                             std::unique_ptr<SettingsDialog> dialog)
    : app_(app), host_(host), dialog_(std::move(dialog)) {}

Value ProfileEditor::view() {
  const FieldEditor& editor = dialog_->editor();
  return editorView(app_.context(), editor.caption(), editor.rows(), previews_);
}

EventResult ProfileEditor::tap(std::string_view target) {
  if (target == kEditorCancel) {
    closed_ = true;
    return {};
  }
  if (target == kEditorOk) return save();
  if (targetField(target) == kRemoveField && dialog_->editor().row(kRemoveField)) {
    askRemoval();
    return {};
  }
  if (const Map* row = dialog_->editor().row(targetField(target));
      row && (*row)["tp"].intValue() == kDate) {
    pickDate(std::string(targetField(target)), *row);
    return {};
  }
  return EventResult::refused("the settings have no button " + std::string(target));
}

EventResult ProfileEditor::change(std::string_view target, const Value& value) {
  const std::string_view field = targetField(target);
  const Map* row = dialog_->editor().row(field);
  if (!row || field == kRemoveField)
    return EventResult::refused("the settings have no field " + std::string(target));
  Value source = value;
  if (field == "photo" && !value.isNull()) {
    std::string why;
    auto picture = pictureFromDataUrl(value.text(), &why);
    // The user hears of it; the portrait stays as it was.
    if (!picture) {
      host_.showMessage(MessageBox::make(app_.context(), kUnreadablePhoto, "Ошибка"));
      return {};
    }
    source = Value(std::move(*picture));
  }
  if (auto refusal = dialog_->change(field, source)) host_.showMessage(std::move(*refusal));
  return {};
}

// Checks the required rows first; a missing one keeps the screen open with its message.
EventResult ProfileEditor::save() {
  if (auto missing = dialog_->close()) {
    host_.showMessage(std::move(*missing));
    return {};
  }
  return finish();
}

// A date is chosen on the diary's own date wheel, so it reads "dd.MM.yyyy" in every browser.
void ProfileEditor::pickDate(std::string field, const Map& row) {
  host_.openPopup(rowPicker(app_.context(), row),
                  [this, field = std::move(field)](const PopupAnswer& answer) {
                    if (answer.button != kConsent) return EventResult();
                    return change(fieldTarget(field), answer.value);
                  });
}

void ProfileEditor::askRemoval() {
  auto question = dialog_->removalQuestion();
  if (!question) return;
  host_.openPopup(std::make_unique<Question>(std::move(*question)),
                  [this](const PopupAnswer& answer) {
                    if (answer.button != kConsent) return EventResult();
                    dialog_->confirmRemoval();
                    return finish();
                  });
}

EventResult ProfileEditor::finish() {
  std::string photoError;
  cloud::cloudProfileChanged(app_.store(), dialog_->finish(&photoError));
  closed_ = true;
  if (!photoError.empty())
    host_.showMessage(MessageBox::make(app_.context(), photoError, "Ошибка"));
  EventResult result;
  result.installationChanged = true;
  return result;
}

}  // namespace lad::shell
