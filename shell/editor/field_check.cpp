#include "shell/editor/field_check.h"

#include <cstdio>

#include "shell/editor/detail_rows.h"

namespace lad::shell {

namespace {

Value scaleValue(const Map& row) {
  const double value = row["source"].doubleValue();
  if (!(value > 0)) return Value("");
  char text[32];
  std::snprintf(text, sizeof text, row["scaletype"].intValue() == kScaleWeight ? "%.3f" : "%.1f",
                value);
  return Value(text);
}

Value corrected(const Map& row) {
  const Value& source = row["source"];
  switch (row["tp"].intValue()) {
    case kScale:
      return scaleValue(row);
    case kSegments:
      return source.isNull() ? source : Value(source.intValue());
    case kLongText:
      return Value(source.text());
    case kList:
      return source.asList() ? Value(tickedText(source)) : source;
    case kPhoto:
      return source.asBytes() ? source : Value();
    default:
      return source;
  }
}

}  // namespace

std::string tickedText(const Value& source) {
  const List* ticked = source.asList();
  if (!ticked) return source.text();
  std::string text;
  for (const Value& id : *ticked) text += (text.empty() ? "" : "<tr>") + id.text();
  return text;
}

void correctField(List& rows) {
  for (Value& row : rows) {
    Map* m = row.asMap();
    if (m && m->contains("source")) m->set("source", corrected(*m));
  }
}

std::optional<MessageBox> checkField(const Context& context, const List& rows) {
  for (const Value& row : rows) {
    if (!row["required"].boolValue() || !emptySource(row)) continue;
    if (row["tp"].intValue() == kList)
      return MessageBox::make(context, "В списке не отмечен ни один пункт!", "Ошибка");
    std::string text = context.translate("Поле '%@' не заполнено!");
    const std::string name =
        row["editcap"].isNull() ? row["caption"].text() : row["editcap"].text();
    if (const auto at = text.find("%@"); at != std::string::npos) text.replace(at, 2, name);
    return MessageBox{context.translate("Ошибка"), text, context.translate("ОК")};
  }
  return std::nullopt;
}

}  // namespace lad::shell
