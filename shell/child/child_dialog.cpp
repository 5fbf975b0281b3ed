#include "shell/child/child_dialog.h"

#include "core/ids.h"
#include "shell/editor/detail_rows.h"
#include "shell/editor/dictionary_entries.h"
#include "store/setup_data.h"
#include "store/setup_editor.h"

namespace lad::shell {

namespace {

constexpr int kBloodList = 4;
constexpr int kAllergyList = 5;
constexpr const char* kEditorDate = "dd.MM.yyyy";
constexpr const char* kClock = "HH:mm";

struct ListField {
  const char* field;
  int list;
};
constexpr ListField kListFields[] = {{"blood", kBloodList}, {"allerg", kAllergyList}};

List childRows(const Context& c, bool existing) {
  List rows{
      detailRow(c, kText, "Укажите имя малыша, дату и время его рождения", ""),
      detailRow(c, kTextInput, "Имя малыша", "name", false, "Имя малыша"),
      detailRow(c, kDate, "Дата рождения", "sbirthdate", true),
      detailRow(c, kTime, "Время рождения", "birthtime"),
      detailRow(c, kSegments, "Не знаю|Мальчик|Девочка", "sex"),
      detailRow(c, kLine, "", ""),
      detailRow(c, kText, "Рост и вес малыша при рождении", ""),
      detailRow(c, kNumber, "Рост (см.)", "rost"),
      detailRow(c, kNumber, "Вес (кг.)", "ves"),
      detailRow(c, kLine, "", ""),
      listRow(c, "blood", "Группа крови", 1, 0),
      listRow(c, "allerg", "Аллергии", 2, 0),
      detailRow(c, kPhoto, "", "photo"),
  };
  if (existing) rows.push_back(removalButton(c));
  return rows;
}

// The stored birth time as "HH:mm": from a full moment, or a text that is a clock already.
std::string birthClock(const Context& c, const Map& setup) {
  if (auto moment = setup["birthtime"].asDate()) return c.dates().dateToString(*moment, kClock);
  const std::string stored = setup["sbirthtime"].text();
  return c.dates().dateFromStringFormat(stored, kClock) ? stored : "";
}

// A measure not taken yet is stored as "0" and shown as nothing.
Value measure(const Value& stored) {
  return stored.text() == "0" ? Value("") : stored;
}

Map childValues(Application& app, const Map& setup, const std::optional<std::string>& gid) {
  const Context& c = app.context();
  Map values;
  values.set("name", setup["name"]);
  if (auto born = setup["birthdate"].asDate())
    values.set("sbirthdate", c.dates().dateToString(*born, kEditorDate));
  values.set("birthtime", birthClock(c, setup));
  values.set("sex", setup["sex"]);
  values.set("rost", measure(setup["rost"]));
  values.set("ves", measure(setup["ves"]));
  values.set("blood", setup["blood"]);
  values.set("allerg", setup["allerg"]);
  startWithPortrait(c, values, gid);
  return values;
}

}  // namespace

ChildDialog::ChildDialog(Application& app, std::optional<std::string> gid)
    : app_(app),
      gid_(std::move(gid)),
      editor_(app.context(), gid_ ? "Настройки" : "Новый ребенок",
              childRows(app.context(), gid_.has_value()),
              childValues(app, loadSetupData(app.store(), gid_), gid_)) {
  fillEntries();
}

// The entries of the blood groups and allergies, the stored ones ticked.
void ChildDialog::fillEntries() {
  for (const ListField& f : kListFields) fillListEntries(editor_, app_.store(), f.field, f.list);
}

std::optional<MessageBox> ChildDialog::change(std::string_view field, const Value& source) {
  if (!editor_.change(field, source)) return std::nullopt;
  if (field == "photo") markPortraitChange(editor_, source);
  return std::nullopt;
}

std::optional<Question> ChildDialog::removalQuestion() const {
  if (!gid_) return std::nullopt;
  return profileRemovalQuestion(app_.context());
}

// The stored profile with what the dialog shows laid over it, so that nothing it does not show
// (the documents) is lost.
Map ChildDialog::childSetup(const std::string& gid, std::string* photoError) {
  Store& store = app_.store();
  const Context& c = app_.context();
  Map setup = loadSetupData(store, gid_);
  for (const auto& [key, value] : setupArrayToDic(store, editor_.rows(), gid, photoError))
    setup.set(key, value);
  for (const ListField& f : kListFields) setup.set(f.field, editor_.text(f.field));
  const std::string clock = editor_.text("birthtime");
  if (clock.empty())
    setup.set("sbirthtime", Value());
  else if (c.dates().dateFromStringFormat(clock, kClock))
    setup.set("sbirthtime", clock);
  setup.erase("birthtime");
  return setup;
}

std::string ChildDialog::finish(std::string* photoError) {
  const std::string gid = gid_.value_or(newID());
  Store& store = app_.store();
  const Map setup = removed_ ? setupArrayToDic(store, List(), gid) : childSetup(gid, photoError);
  saveSetupData(store, kSetupWhole, setup, gid);
  return gid;
}

}  // namespace lad::shell
