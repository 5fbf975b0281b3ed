#include "shell/editor/entry_forms.h"

#include "shell/editor/detail_rows.h"

namespace lad::shell {

namespace {

struct EntryForm {
  std::string_view caption;
  List rows;
};

// A row of a period, marked with its place among the start, end and length kept in step.
Value periodRow(const Context& c, int kind, std::string_view caption, std::string_view field,
                std::string_view text, const char* mark) {
  Value row = detailRow(c, kind, caption, field, true, text);
  row.asMap()->set("autocalc", mark);
  row.asMap()->set("pic", "checkgreen.png");
  return row;
}

EntryForm periodForm(const Context& c, std::string_view caption, std::string_view start,
                     std::string_view startText, std::string_view end, std::string_view length) {
  return {caption,
          {periodRow(c, kEntryTime, start, "start", startText, "start"),
           periodRow(c, kEntryTime, end, "end", end, "end"),
           periodRow(c, kTime, length, "interval", length, "length")}};
}

std::optional<EntryForm> formOf(const Context& c, std::string_view field) {
  const Value comment = detailRow(c, kEntryText, "Комментарий", "comment", false, "Комментарий");
  if (field == "pressure")
    return EntryForm{
        "Давление",
        {detailRow(c, kEntryTime, "Время замера", "time", true, "Укажите время замера"),
         detailRow(c, kEntryNumber, "Верхнее давление", "pressure1", true, "Вехнее давление"),
         detailRow(c, kEntryNumber, "Нижнее давление", "pressure2", true, "Нижнее давление"),
         comment}};
  if (field == "zhid")
    return EntryForm{
        "Жидкость",
        {detailRow(c, kEntryTime, "Время замера", "time", true, "Время замера"),
         detailRow(c, kEntryNumber, "Выпито", "in", true, "Выпито (мл.)"),
         detailRow(c, kEntryNumber, "Выделено", "out", true, "Выделено (мл.)"), comment}};
  if (field == "sleep")
    return periodForm(c, "Сон", "Начало сна", "Укажите дату начала сна", "Окончание сна",
                      "Продолжительность сна");
  if (field == "walk")
    return periodForm(c, "Прогулка", "Начало прогулки", "Укажите дату начала прогулки",
                      "Окончание прогулки", "Продолжительность прогулки");
  return std::nullopt;
}

// The entry at pos of the JSON list, or the defaults of a new one.
std::optional<Map> entryValues(const Context& c, const List& rows, std::string_view value,
                               int pos) {
  if (pos < 0) {
    Map values;
    for (const Value& row : rows) values.set(row["field"].text(), "");
    const std::string now = c.dates().dateToString(c.clock().now(), "HH:mm");
    values.set("time", now);
    values.set("start", now);
    values.set("interval", "00:00");
    return values;
  }
  return entryAt(value, pos);
}

}  // namespace

std::optional<Map> entryAt(std::string_view value, int pos) {
  const auto list = Value::fromJson(value);
  const List* entries = list ? list->asList() : nullptr;
  if (!entries || pos < 0 || pos >= static_cast<int>(entries->size())) return std::nullopt;
  const Map* entry = (*entries)[pos].asMap();
  return entry ? std::optional<Map>(*entry) : std::nullopt;
}

std::optional<FieldEditor> entryForm(const Context& context, std::string_view field,
                                     std::string_view value, int pos) {
  auto form = formOf(context, field);
  if (!form) return std::nullopt;
  auto values = entryValues(context, form->rows, value, pos);
  if (!values) return std::nullopt;
  return FieldEditor(context, std::string(form->caption), std::move(form->rows), *values);
}

}  // namespace lad::shell
