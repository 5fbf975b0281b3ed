#include "shell/diary/day_row_form.h"

#include "core/json_text.h"
#include "health/pill_times.h"
#include "shell/diary/teeth_form.h"
#include "shell/editor/detail_forms.h"
#include "shell/editor/detail_rows.h"
#include "shell/editor/dictionary_entries.h"
#include "shell/editor/editor_view.h"
#include "shell/editor/entry_forms.h"
#include "shell/editor/field_check.h"
#include "shell/editor/row_picker.h"
#include "shell/views/editors.h"
#include "store/dictionary.h"
#include "store/keywords.h"
#include "store/profiles.h"
#include "store/values/editor_value.h"
#include "store/values/reading_forms.h"

namespace lad::shell {

namespace {

constexpr std::string_view kListField = "list";

bool isMeasurement(int kind) {
  return kind == kKindTemperature || kind == kKindAlarm;
}

bool isEntryList(int kind) {
  return kind == kKindPills || kind == kKindSpans || kind == 30 || kind == 31;
}

// The fields whose change works out a course's intake times afresh.
bool drivesIntakeTimes(std::string_view field) {
  return field == "pillinter" || field == "pilleat";
}

std::optional<FieldEditor> formOf(const Context& context, const Map& row, int pos, Date day) {
  const int kind = static_cast<int>(row["tp"].intValue());
  const std::string source = row["source"].text();
  if (isEntryList(kind)) return entryForm(context, row["field"].text(), source, pos, day);
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

std::optional<DayRowForm> DayRowForm::open(Application& app, const Map& row, int pos, Date day) {
  auto editor = formOf(app.context(), row, pos, day);
  if (!editor) return std::nullopt;
  DayRowForm form(app, static_cast<int>(row["tp"].intValue()), pos, row["source"].text(),
                  std::move(*editor));
  form.fillEntries(form.editor_);
  form.showChoices();
  return form;
}

DayRowForm::DayRowForm(Application& app, int kind, int pos, std::string old, FieldEditor editor)
    : app_(&app), kind_(kind), pos_(pos), old_(std::move(old)), editor_(std::move(editor)) {}

// The editor in front: the dialog of a new entry, the chooser, or the form itself.
FieldEditor& DayRowForm::top() {
  if (addition_) return *addition_;
  return chooser_ ? chooser_->editor : editor_;
}

// A dictionary list offers the entries of its list, the ticked ones marked.
void DayRowForm::fillEntries(FieldEditor& editor) {
  const Map* row = editor.row(kListField);
  if (row) fillListEntries(editor, app_->store(), kListField, (*row)["listid"].intValue());
}

// A dictionary choice row shows the name of its entry, or "пусто".
void DayRowForm::showChoices() {
  const List listData = loadConstList(app_->store(), 0, std::nullopt);
  for (const Value& row : editor_.rows()) {
    if (row["tp"].intValue() != kDictionaryChoice) continue;
    const std::string guid = row["source"].text();
    const std::string name = guid.empty() ? "" : checkStringToRead(guid, listData);
    editor_.setRowKey(row["field"].text(), "shown",
                      name.empty() ? app_->context().translate("пусто") : name);
  }
}

// A course's hours follow its count and its relation to food until the user sets them.
void DayRowForm::freezeIntakeTimes(std::string_view changed) {
  if (kind_ != kKindPills || !drivesIntakeTimes(changed)) return;
  Map course;
  for (const Value& row : editor_.rows())
    if (row["tp"].intValue() >= kDate && !row["field"].text().empty())
      course.set(row["field"].text(), row["source"].text());
  const Context& context = app_->context();
  const auto times = health::getCurrentPillTime(
      context, Regimen::fromValue(Value(std::move(course))),
      loadConstList(app_->store(), 0, std::nullopt), getObed(app_->store()), context.clock().now());
  editor_.change("pilltime", Value(times.value_or("")));
}

Value DayRowForm::view() const {
  if (addition_) return addition_->view();
  return chooser_ ? chooser_->editor.view() : editor_.view();
}

DayRowForm::Outcome DayRowForm::tap(std::string_view target, std::optional<MessageBox>* refusal) {
  const bool ok = target == kEditorOk, cancel = target == kEditorCancel;
  if (addition_) {
    if (cancel) addition_.reset();
    return ok ? commitAddition(refusal) : Outcome::kOpen;
  }
  if (chooser_ && (ok || cancel)) {
    if (ok) return commitChoice(refusal);
    chooser_.reset();
    return Outcome::kOpen;
  }
  if (cancel) return Outcome::kCancelled;
  if (ok) return commit(refusal);
  if (targetField(target) == kAddEntryField) return openAddition();
  return chooser_ ? Outcome::kOpen : tapRow(target);
}

// A row of the form itself: a dictionary choice opens its chooser, a picked row its wheels.
DayRowForm::Outcome DayRowForm::tapRow(std::string_view target) {
  const Context& context = app_->context();
  if (auto time = intakeTimeOf(target); time && editor_.row(time->field)) {
    pick_ = {intakeTimePicker(context, *editor_.row(time->field), time->n), std::string(target)};
  } else if (const Map* row = editor_.row(targetField(target))) {
    if ((*row)["tp"].intValue() == kDictionaryChoice) {
      openChooser(targetField(target));
      return Outcome::kOpen;
    }
    pick_ = {rowPicker(context, *row), std::string(target)};
  }
  return pick_.popup ? Outcome::kPick : Outcome::kOpen;
}

DayRowForm::Outcome DayRowForm::openAddition() {
  const Map* list = top().row(kListField);
  if (!list) return Outcome::kOpen;
  if (auto dialog =
          addDialog(app_->context(), static_cast<int>((*list)["listedittype"].intValue())))
    addition_.emplace(std::move(*dialog));
  return Outcome::kOpen;
}

// The chooser is the form of a one-tick list over the row's dictionary, which takes new entries.
void DayRowForm::openChooser(std::string_view field) {
  const Map& row = *editor_.row(field);
  DetailForm form{2,
                  row["editcap"].text(),
                  row["editdescr"].text(),
                  row["source"].text(),
                  static_cast<int>(row["listid"].intValue()),
                  true};
  auto chooser = detailPrepare(app_->context(), form);
  if (!chooser) return;
  chooser_.emplace(Chooser{std::string(field), std::move(*chooser)});
  fillEntries(chooser_->editor);
}

bool DayRowForm::change(std::string_view target, const Value& value) {
  if (addition_ || chooser_) return top().change(targetField(target), value);
  if (auto time = intakeTimeOf(target); time && editor_.row(time->field)) {
    auto times = withIntakeTime(app_->context(), *editor_.row(time->field), time->n, value.text());
    return times && editor_.change(time->field, Value(*times));
  }
  const std::string_view field = targetField(target);
  if (!editor_.change(field, value)) return false;
  freezeIntakeTimes(field);
  return true;
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

DayRowForm::Outcome DayRowForm::commitChoice(std::optional<MessageBox>* refusal) {
  if ((*refusal = chooser_->editor.close())) return Outcome::kOpen;
  const std::string field = chooser_->field;
  const Map* list = chooser_->editor.row(kListField);
  const std::string guid = list ? tickedText((*list)["source"]) : "";
  chooser_.reset();
  editor_.change(field, Value(guid));
  showChoices();
  freezeIntakeTimes(field);
  return Outcome::kOpen;
}

// The new entry joins the dictionary and is ticked in the list at once.
DayRowForm::Outcome DayRowForm::commitAddition(std::optional<MessageBox>* refusal) {
  if ((*refusal = addition_->close())) return Outcome::kOpen;
  const std::string name = addition_->row("name") ? (*addition_->row("name"))["source"].text() : "";
  addition_.reset();
  FieldEditor& editor = top();
  const Map& list = *editor.row(kListField);
  const std::string guid =
      addConst(app_->store(), static_cast<int>(list["listid"].intValue()), name, 0, std::nullopt);
  const std::string ticked = tickedText(list["source"]);
  const bool many = list["listtype"].intValue() == 2;
  editor.change(kListField, Value(many && !ticked.empty() ? ticked + "<tr>" + guid : guid));
  fillEntries(editor);
  return Outcome::kOpen;
}

}  // namespace lad::shell
