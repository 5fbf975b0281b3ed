#include "shell/diary/teeth_form.h"

#include "health/child_teeth.h"
#include "shell/editor/detail_rows.h"
#include "shell/editor/field_check.h"
#include "store/values/reading_forms.h"

namespace lad::shell {

namespace {

constexpr std::string_view kTeethField = "tooth";

List teethEntries(const Context& context, const health::TeethState& present) {
  List entries;
  for (int n = 1; n <= health::kMilkTeeth; ++n) {
    Map e;
    e.set("id", std::to_string(n));
    e.set("caption", context.translate(toothName(n)));
    e.set("checked", present.test(static_cast<std::size_t>(n - 1)));
    entries.push_back(Value(std::move(e)));
  }
  return entries;
}

}  // namespace

FieldEditor teethForm(const Context& context, std::string_view caption, std::string_view descr,
                      std::string_view before, std::string_view dayValue) {
  const health::TeethState present = health::applyTeeth(health::applyTeeth({}, before), dayValue);
  Value list = listRow(context, kTeethField, "", 2, 0);
  list.asMap()->set("listdata", teethEntries(context, present));
  list.asMap()->set("oldtooth", std::string(before));
  Map values;
  values.set(std::string(kTeethField), health::teethText(present));
  return FieldEditor(context, std::string(caption),
                     {detailRow(context, kText, descr, ""), std::move(list)}, values);
}

std::string teethValue(const FieldEditor& form) {
  const Map* row = form.row(kTeethField);
  if (!row) return "";
  const health::TeethState before = health::applyTeeth({}, (*row)["oldtooth"].text());
  return health::toothChanges(before, health::applyTeeth({}, tickedText((*row)["source"])));
}

}  // namespace lad::shell
