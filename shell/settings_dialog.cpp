#include "shell/settings_dialog.h"

#include "shell/editor/detail_rows.h"
#include "store/portrait.h"
#include "store/setup_editor.h"

namespace lad::shell {

void startWithPortrait(const Context& context, Map& values, const std::optional<std::string>& gid) {
  if (!gid) return;
  if (auto portrait = readPortrait(context, *gid)) values.set("photo", *portrait);
}

void markPortraitChange(FieldEditor& editor, const Value& picture) {
  editor.setRowKey("photo", "image", picture);
  editor.setRowKey("photo", "save", picture.asBytes() ? kWritePhoto : kRemovePhoto);
}

Value removalButton(const Context& context) {
  Value remove = detailRow(context, kButton, "Удалить учетную запись", "remove");
  remove.asMap()->set("pic", "b-orangeB.png");
  return remove;
}

Question profileRemovalQuestion(const Context& context) {
  return Question::ask(context, "Вы действительно хотите удалить эту учетную запись?", "Удаление");
}

}  // namespace lad::shell
