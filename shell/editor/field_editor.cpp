#include "shell/editor/field_editor.h"

#include "health/child_intervals.h"
#include "shell/editor/detail_rows.h"
#include "shell/editor/editor_view.h"
#include "shell/editor/field_check.h"
#include "store/values/editor_value.h"

namespace lad::shell {

namespace {

// The row of a field in rows, const or not; nullptr when there is none.
template <class Rows>
auto rowOf(Rows& rows, std::string_view field) -> decltype(rows.front().asMap()) {
  for (auto& r : rows)
    if (auto* m = r.asMap(); m && (*m)["field"].text() == field) return m;
  return nullptr;
}

// A list's entries marked as the ticked ids of its new value say, so that a redraw shows them.
void markTicked(Map& row) {
  const Value* entries = row.find("listdata");
  if (row["tp"].intValue() != kList || !entries || !entries->asList()) return;
  const std::string ticked = "<tr>" + tickedText(row["source"]) + "<tr>";
  List marked = *entries->asList();
  for (Value& entry : marked)
    if (Map* e = entry.asMap())
      e->set("checked", ticked.find("<tr>" + (*e)["id"].text() + "<tr>") != std::string::npos);
  row.set("listdata", Value(std::move(marked)));
}

}  // namespace

FieldEditor::FieldEditor(const Context& context, std::string caption, List rows, const Map& values)
    : context_(context), caption_(context.translate(caption)), rows_(std::move(rows)) {
  for (Value& row : rows_) {
    Map* m = row.asMap();
    if (!m) continue;
    const std::string field = (*m)["field"].text();
    if (const Value* v = values.find(field); v && !field.empty()) m->set("source", *v);
    if ((*m)["tp"].intValue() == kScale && !emptySource(row)) m->set("startactive", true);
  }
}

Map* FieldEditor::find(std::string_view field) {
  return rowOf(rows_, field);
}

const Map* FieldEditor::row(std::string_view field) const {
  return rowOf(rows_, field);
}

std::string FieldEditor::text(std::string_view field) const {
  const Map* r = row(field);
  return r ? (*r)["source"].text() : std::string();
}

bool FieldEditor::change(std::string_view field, Value source) {
  Map* m = field.empty() ? nullptr : find(field);
  if (!m) return false;
  m->set("source", std::move(source));
  markTicked(*m);
  if (const std::string mark = (*m)["autocalc"].text(); !mark.empty())
    health::autocalc(rows_, mark);
  return true;
}

bool FieldEditor::setRowKey(std::string_view field, std::string_view key, Value value) {
  Map* m = field.empty() ? nullptr : find(field);
  if (!m) return false;
  m->set(std::string(key), std::move(value));
  return true;
}

std::optional<MessageBox> FieldEditor::close() {
  correctField(rows_);
  return checkField(context_, rows_);
}

bool FieldEditor::openNested(std::string_view field, int tp, int pos, FieldEditor editor) {
  if (field.empty() || !find(field)) return false;
  nested_ = std::make_unique<Nested>(Nested{std::string(field), tp, pos, std::move(editor)});
  return true;
}

FieldEditor* FieldEditor::nested() {
  return nested_ ? &nested_->editor : nullptr;
}

std::optional<MessageBox> FieldEditor::commitNested() {
  if (!nested_) return std::nullopt;
  if (auto refused = nested_->editor.close()) return refused;
  Map* m = find(nested_->field);
  const std::string old = (*m)["source"].text();
  m->set("source", jsonFromDic(nested_->tp, old, nested_->editor.rows(), nested_->pos));
  nested_.reset();
  return std::nullopt;
}

Value FieldEditor::view() const {
  Value v = editorView(context_, caption_, rows_, previews_);
  if (nested_) v.asMap()->set("nested", nested_->editor.view());
  return v;
}

}  // namespace lad::shell
