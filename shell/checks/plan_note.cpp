#include "shell/checks/plan_note.h"

#include "cloud/cloud_writers.h"
#include "core/edition.h"
#include "shell/editor/detail_forms.h"
#include "shell/editor/editor_screen.h"
#include "store/records.h"
#include "store/store.h"

namespace lad::shell {

namespace {

constexpr int kPlanNoteForm = 104;

}  // namespace

void insertIntoNote(Application& app, const std::string& gid, const std::string& text, Date day) {
  const std::string field = isChildEdition(app.context().values().appid) ? "priv" : "doctor";
  {
    StoreBracket bracket = app.store().connectToBase();
    const std::string old = getDateValue(app.store(), bracket, day, field, gid);
    const std::string value = old.empty() ? text : old + "\n" + text;
    insertValue(app.store(), bracket, field, value, day, gid, true, false);
  }
  cloud::cloudDayChanged(app.store(), day, gid);
  app.dataChanged();
}

void offerPlanNote(Application& app, ScreenHost& host, const std::string& gid, std::string text) {
  const Context& context = app.context();
  auto editor = detailPrepare(
      context, {kPlanNoteForm, "Прививки и исследования",
                "Это событие можно поместить в дневник. Для этого отредактируйте текст и нажмите "
                "вверху на правую кнопку ...",
                std::move(text)});
  if (!editor) return;
  host.push(std::make_shared<EditorScreen>(
      context, host, std::move(*editor),
      [&app, gid](const FieldEditor& rows) -> std::optional<MessageBox> {
        const auto day =
            app.context().dates().dateFromStringFormat(rows.text("date"), "dd.MM.yyyy");
        if (!day) return MessageBox::make(app.context(), "Укажите дату", "Ошибка");
        insertIntoNote(app, gid, rows.text("text"), *day);
        return std::nullopt;
      }));
}

}  // namespace lad::shell
