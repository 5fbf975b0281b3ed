#include "shell/editor/day_field_edit.h"

#include "store/records.h"
#include "store/store.h"
#include "store/values/editor_value.h"

namespace lad::shell {

DayFieldEdit::DayFieldEdit(Application& app, std::string gid, Date day, std::string type, int kind,
                           std::string old, FieldEditor editor)
    : app_(app),
      gid_(std::move(gid)),
      day_(day),
      type_(std::move(type)),
      kind_(kind),
      old_(std::move(old)),
      editor_(std::move(editor)) {}

std::optional<DayFieldEdit> DayFieldEdit::open(Application& app, std::string gid, Date day,
                                               std::string type, DetailForm form) {
  {
    StoreBracket bracket = app.store().connectToBase();
    form.dat = getDateValue(app.store(), bracket, day, type, gid);
  }
  auto editor = detailPrepare(app.context(), form);
  if (!editor) return std::nullopt;
  return DayFieldEdit(app, std::move(gid), day, std::move(type), form.parentflag,
                      std::move(form.dat), std::move(*editor));
}

std::optional<MessageBox> DayFieldEdit::commit() {
  if (auto refused = editor_.close()) return refused;
  const std::string value = jsonFromDic(kind_, old_, editor_.rows(), -1);
  StoreBracket bracket = app_.store().connectToBase();
  insertValue(app_.store(), bracket, type_, value, day_, gid_, true, false);
  return std::nullopt;
}

}  // namespace lad::shell
