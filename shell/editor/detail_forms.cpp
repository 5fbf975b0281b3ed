#include "shell/editor/detail_forms.h"

#include "shell/editor/detail_rows.h"

namespace lad::shell {

namespace {

Map jsonObject(std::string_view dat) {
  const auto parsed = Value::fromJson(dat);
  const Map* m = parsed ? parsed->asMap() : nullptr;
  return m ? *m : Map();
}

std::string timeNow(const Context& c) {
  return c.dates().dateToString(c.clock().now(), "HH:mm");
}

Value dictionaryList(const Context& c, const DetailForm& f, int listtype, int listedittype,
                     std::string_view field = "list", std::string_view caption = "",
                     bool required = false) {
  Value row = listRow(c, field, caption, listtype, listedittype, required);
  row.asMap()->set("listid", f.cotype);
  row.asMap()->set("edit", f.edit);
  return row;
}

Value requiredTime(const Context& c, std::string_view field, std::string_view caption) {
  return detailRow(c, kTime, caption, field, true, caption);
}

Value birthKinds(const Context& c) {
  Value row = listRow(c, "type", "", 1, 0, true);
  Map natural, caesarean;
  natural.set("id", "1");
  natural.set("caption", c.translate("Естественные роды"));
  natural.set("checked", true);
  caesarean.set("id", "2");
  caesarean.set("caption", c.translate("Кесарево сечение"));
  row.asMap()->set("listdata", Value(List{Value(std::move(natural)), Value(std::move(caesarean))}));
  return row;
}

// The body sizes of a child, each on a scale with its numbered picture.
void bodySizes(const Context& c, List& rows) {
  const std::string prefix = c.values().themeDarkIcons ? "b-" : "";
  Value picture = detailRow(c, kPicture, "", "");
  picture.asMap()->set("pic", prefix + "size.png");
  rows.push_back(std::move(picture));
  const std::pair<const char*, int> sizes[] = {{"Окружность головы (см.)", 70},
                                               {"Обхват груди (см.)", 90},
                                               {"Обхват талии (см.)", 90},
                                               {"Обхват бедер (см.)", 90},
                                               {"Длина стопы (см.)", 40}};
  for (int n = 1; n <= 5; ++n) {
    const auto [caption, max] = sizes[n - 1];
    Value row = scaleRow(c, "bio" + std::to_string(n), caption, n == 5 ? 1 : 20, max, kScaleLength);
    row.asMap()->set("pic", prefix + "num" + std::to_string(n) + ".png");
    rows.push_back(std::move(row));
  }
}

// The rows under the message and the value dictionary of one form; false for no such form.
bool formRows(const Context& c, const DetailForm& f, List& rows, Map& values) {
  switch (f.parentflag) {
    case 1:
    case 2:
    case 8:
      rows.push_back(dictionaryList(c, f, f.parentflag == 1 ? 2 : 1, f.parentflag == 8 ? 2 : 1));
      if (f.edit) rows.push_back(detailRow(c, kButton, "Добавить тип", kAddEntryField));
      values.set("list", f.dat);
      return true;
    case 3:
      rows.push_back(detailRow(c, kLongText, "", "text"));
      values.set("text", f.dat);
      return true;
    case 4:
      rows.push_back(scaleRow(c, "temp", "Температура", 30, 45, kScaleTemperature, true));
      rows.push_back(requiredTime(c, "time", "Время замера"));
      values.set("temp", "36.6");
      values.set("time", timeNow(c));
      return true;
    case 5:
      rows.push_back(detailRow(c, kLongText, "", "temp", true, "Текст напоминания"));
      rows.push_back(requiredTime(c, "time", "Время напоминания"));
      values.set("time", timeNow(c));
      return true;
    case 6:
    case 7:
      return true;
    case 9:
      bodySizes(c, rows);
      values = jsonObject(f.dat);
      return true;
    case 15:
      rows.push_back(scaleRow(c, "rost", "Рост малыша на УЗИ (см.)", -3, 80, kScaleLength));
      rows.push_back(scaleRow(c, "ves", "Вес малыша на УЗИ (кг.)", -3, 12, kScaleWeight));
      values = jsonObject(f.dat);
      return true;
    case 16:
      rows.push_back(scaleRow(c, "rost", "Рост малыша (см.)", -3, 100, kScaleLength, true));
      rows.push_back(scaleRow(c, "ves", "Вес малыша (кг.)", -3, 12, kScaleWeight, true));
      rows.push_back(requiredTime(c, "time", "Время рождения"));
      rows.push_back(detailRow(c, kLine, "", ""));
      rows.push_back(detailRow(c, kText, "Укажите способ, которым у вас проходили роды", ""));
      rows.push_back(birthKinds(c));
      values.set("type", "1");
      values.set("time", timeNow(c));
      return true;
    case 19:
    case 27:
      rows.push_back(detailRow(c, kNumber, "Объем", "volume", true, "Объем"));
      rows.push_back(dictionaryList(c, f, 1, f.parentflag == 19 ? 1 : 3, "tip", "Продукт", true));
      values = jsonObject(f.dat);
      return true;
    case 104:
      rows.push_back(detailRow(c, kLongText, "Текст", "text", true, "Текст"));
      rows.push_back(detailRow(c, kDate, "Дата", "date", true, "Дата"));
      values.set("text", f.dat);
      values.set("date", c.dates().dateToString(c.clock().now(), "dd.MM.yyyy"));
      return true;
    case 105:
      rows.push_back(detailRow(c, kNumber, "Объем", "volume", true, "Объем"));
      values = jsonObject(f.dat);
      return true;
    default:
      return false;
  }
}

}  // namespace

std::optional<FieldEditor> detailPrepare(const Context& context, const DetailForm& form) {
  List rows{detailRow(context, kText, form.msg, "")};
  Map values;
  if (!formRows(context, form, rows, values)) return std::nullopt;
  return FieldEditor(context, std::string(form.caption), std::move(rows), values);
}

std::optional<FieldEditor> addDialog(const Context& context, int listedittype) {
  const Value name =
      detailRow(context, kTextInput, "Название нового типа", "name", true, "Название нового типа");
  switch (listedittype) {
    case 1:
      return FieldEditor(context, "Новый тип",
                         {detailRow(context, kText, "Укажите название нового типа", ""), name}, {});
    case 2:
      return FieldEditor(
          context, "Новая болезнь",
          {detailRow(context, kTextInput, "Название новой болезни", "name", true,
                     "Название новой болезни"),
           detailRow(context, kSwitch, "Добавлять болезнь в анкету ребенка", "anketa")},
          {});
    case 3:
      return FieldEditor(
          context, "Новый продукт",
          {detailRow(context, kText, "Укажите название нового типа и меру измерения", ""), name,
           detailRow(context, kMeasure, "Мера", "measure", true, "Мера")},
          {});
    default:
      return std::nullopt;
  }
}

}  // namespace lad::shell
