#include "shell/editor/entry_forms.h"

#include "core/ids.h"
#include "shell/editor/detail_rows.h"

namespace lad::shell {

namespace {

struct EntryForm {
  std::string_view caption;
  List rows;
};

// Dictionary lists of a medicine course, and the seeded entries its new courses start with.
constexpr int kMedicines = 101, kPeriods = 102, kMealRelations = 103;
constexpr int kSeedGroup = 4, kDailySeed = 10, kAnyMealSeed = 15;

struct CourseRow {
  int kind;
  std::string_view field, caption, editcap, editdescr, pic;
  int listid = 0;
};

// Every row is required; a line stands between each two.
List courseRows(const Context& c) {
  const CourseRow rows[] = {
      {kDictionaryChoice, "pillname", "Название лекарства", "Выбор лекарства",
       "Выберите из списка лекарство, если его в списке нет- добавьте новое", "pills1.png",
       kMedicines},
      {kDose, "pilldoza", "Дозировка", "Дозировка таблеток", "Укажите дозировку лекарства",
       "pills2.png"},
      {kFrequency, "pillinter", "Количество приемов", "Количество приемов",
       "Укажите количество приемов", "pills3.png"},
      {kDictionaryChoice, "pillperiod", "Периодичность приема", "Периодичность приема",
       "Укажите периодичность приема", "pills4.png", kPeriods},
      {kDictionaryChoice, "pilleat", "Принимать относительно еды", "Отношение к еде",
       "Укажите как лекарство стоит принимать относительно приема пищи", "pills5.png",
       kMealRelations},
      {kCourseLength, "pilllength", "Длительность лечения", "Длительность лечения",
       "Укажите как долго нужно принимать лекарство", "pills6.png"},
      {kDate, "pillsdate", "Дата начала приема", "Дата начала приема", "Укажите дату начала приема",
       ""},
      {kIntakeTimes, "pilltime", "Время приема", "Время приема", "Укажите время приема",
       "pills7.png"}};
  List list;
  for (const CourseRow& r : rows) {
    if (!list.empty()) list.push_back(detailRow(c, kLine, "", ""));
    Value row = detailRow(c, r.kind, r.caption, r.field, true, r.editcap);
    Map& m = *row.asMap();
    m.set("editdescr", c.translate(r.editdescr));
    if (!r.pic.empty()) m.set("pic", std::string(r.pic));
    if (r.listid) m.set("listid", r.listid);
    list.push_back(std::move(row));
  }
  return list;
}

// A new course: three intakes a day for a week from the day, every day, whatever the meals.
Map newCourse(const Context& c, Date day) {
  Map values;
  values.set("pilldoza", "3<td>шт.");
  values.set("pillinter", "3<td>раз в сутки");
  values.set("pillperiod", newID2(kSeedGroup, kDailySeed));
  values.set("pilleat", newID2(kSeedGroup, kAnyMealSeed));
  values.set("pilllength", "1<td>недели");
  values.set("pillsdate", c.dates().dateToString(day, "dd.MM.yyyy"));
  values.set("pilltime", "08:00<td>15:00<td>22:00");
  return values;
}

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
  if (field == "pills") return EntryForm{"Лекарства", courseRows(c)};
  if (field == "sleep")
    return periodForm(c, "Сон", "Начало сна", "Укажите дату начала сна", "Окончание сна",
                      "Продолжительность сна");
  if (field == "walk")
    return periodForm(c, "Прогулка", "Начало прогулки", "Укажите дату начала прогулки",
                      "Окончание прогулки", "Продолжительность прогулки");
  return std::nullopt;
}

// The entry at pos of the JSON list, or the defaults of a new one.
std::optional<Map> entryValues(const Context& c, std::string_view field, const List& rows,
                               std::string_view value, int pos, Date day) {
  if (pos < 0 && field == "pills") return newCourse(c, day);
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
                                     std::string_view value, int pos, Date day) {
  auto form = formOf(context, field);
  if (!form) return std::nullopt;
  auto values = entryValues(context, field, form->rows, value, pos, day);
  if (!values) return std::nullopt;
  return FieldEditor(context, std::string(form->caption), std::move(form->rows), *values);
}

}  // namespace lad::shell
