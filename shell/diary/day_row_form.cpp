#include "shell/diary/day_row_form.h"

#include "core/json_text.h"
#include "shell/diary/teeth_form.h"
#include "shell/editor/detail_forms.h"
#include "shell/editor/detail_rows.h"
#include "shell/editor/editor_view.h"
#include "shell/editor/entry_forms.h"
#include "shell/editor/field_check.h"
#include "shell/views/editors.h"
#include "store/dictionary.h"
#include "store/editor_value.h"
#include "store/keywords.h"

namespace lad::shell {

namespace {

constexpr std::string_view kListField = "list";

bool isMeasurement(int kind) {
  return kind == kKindTemperature || kind == kKindAlarm;
}

bool isEntryList(int kind) {
  return kind == kKindSpans || kind == 30 || kind == 31;
}

std::optional<FieldEditor> formOf(const Context& context, const Map& row, int pos) {
  const int kind = static_cast<int>(row["tp"].intValue());
  const std::string source = row["source"].text();
  if (isEntryList(kind)) return entryForm(context, row["field"].text(), source, pos);
  if (kind == kKindTeeth)
    return teethForm(context, row["editcap"].text(), row["editdescr"].text(),
                     row["oldtooth"].text(), source);
  const bool measurement = isMeasurement(kind);
  if (pos >= 0 && !measurement) return std::nullopt;
  std::optional<Map> entry;
  if (pos >= 0 && !(entry = entryAt(source, pos))) return std::nullopt;
  DetailForm form{kind,
                  row["editcap"].text(),
                  row["editdescr"].text(),
                  measurement ? "" : source,
                  static_cast<int>(row["listid"].intValue()),
                  row["edit"].boolValue()};
  auto editor = detailPrepare(context, form);
  if (editor && entry)
    for (const auto& [field, value] : *entry) editor->change(field, value);
  return editor;
}

}  // namespace

std::string withoutEntry(std::string_view value, int pos) {
  const auto parsed = Value::fromJson(value);
  const List* entries = parsed ? parsed->asList() : nullptr;
  if (!entries) return "";
  List kept;
  for (int i = 0; i < static_cast<int>(entries->size()); ++i)
    if (i != pos) kept.push_back((*entries)[i]);
  return kept.empty() ? "" : jsonFromObject(Value(std::move(kept)));
}

std::optional<DayRowForm> DayRowForm::open(Application& app, const Map& row, int pos) {
  auto editor = formOf(app.context(), row, pos);
  if (!editor) return std::nullopt;
  DayRowForm form(app, static_cast<int>(row["tp"].intValue()), pos, row["source"].text(),
                  static_cast<int>(row["listid"].intValue()), std::move(*editor));
  form.fillEntries();
  return form;
}

DayRowForm::DayRowForm(Application& app, int kind, int pos, std::string old, int listid,
                       FieldEditor editor)
    : app_(&app),
      kind_(kind),
      pos_(pos),
      old_(std::move(old)),
      listid_(listid),
      editor_(std::move(editor)) {}

// A dictionary list offers the entries of its list, the ticked ones marked.
void DayRowForm::fillEntries() {
  const Map* row = editor_.row(kListField);
  if (!row || listid_ <= 0) return;
  const std::string ticked = tickedText((*row)["source"]);
  List entries;
  for (const Value& entry : loadConstList(app_->store(), listid_, ticked)) {
    Map e;
    e.set("id", entry["index"].text());
    e.set("caption", entry["cap"].text());
    e.set("checked", entry["checked"].boolValue());
    entries.push_back(std::move(e));
  }
  editor_.setRowKey(kListField, "listdata", Value(std::move(entries)));
}

Value DayRowForm::view() const {
  return addition_ ? addition_->view() : editor_.view();
}

DayRowForm::Outcome DayRowForm::tap(std::string_view target, std::optional<MessageBox>* refusal) {
  if (addition_) {
    if (target == kEditorCancel) addition_.reset();
    if (target == kEditorOk) return commitAddition(refusal);
    return Outcome::kOpen;
  }
  if (target == kEditorCancel) return Outcome::kCancelled;
  if (target == kEditorOk) return commit(refusal);
  const Map* list = editor_.row(kListField);
  if (targetField(target) != kAddEntryField || !list) return Outcome::kOpen;
  if (auto dialog =
          addDialog(app_->context(), static_cast<int>((*list)["listedittype"].intValue())))
    addition_.emplace(std::move(*dialog));
  return Outcome::kOpen;
}

bool DayRowForm::change(std::string_view target, const Value& value) {
  FieldEditor& editor = addition_ ? *addition_ : editor_;
  return editor.change(targetField(target), value);
}

DayRowForm::Outcome DayRowForm::commit(std::optional<MessageBox>* refusal) {
  if ((*refusal = editor_.close())) return Outcome::kOpen;
  if (kind_ == kKindTeeth)
    value_ = teethValue(editor_);
  else if (isMeasurement(kind_) && pos_ >= 0)
    value_ = jsonFromDic(kind_, withoutEntry(old_, pos_), editor_.rows(), -1);
  else
    value_ = jsonFromDic(kind_, old_, editor_.rows(), pos_);
  return Outcome::kDone;
}

// The new entry joins the dictionary and is ticked in the list at once.
DayRowForm::Outcome DayRowForm::commitAddition(std::optional<MessageBox>* refusal) {
  if ((*refusal = addition_->close())) return Outcome::kOpen;
  const std::string name = addition_->row("name") ? (*addition_->row("name"))["source"].text() : "";
  addition_.reset();
  const std::string guid = addConst(app_->store(), listid_, name, 0, std::nullopt);
  const Map& list = *editor_.row(kListField);
  const std::string ticked = tickedText(list["source"]);
  const bool many = list["listtype"].intValue() == 2;
  editor_.change(kListField, Value(many && !ticked.empty() ? ticked + "<tr>" + guid : guid));
  fillEntries();
  return Outcome::kOpen;
}

}  // namespace lad::shell
