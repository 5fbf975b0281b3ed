#include "shell/profile_dialog.h"

#include "core/ids.h"
#include "health/body_index.h"
#include "health/pregnancy_dates.h"
#include "shell/editor/detail_rows.h"
#include "store/setup_data.h"
#include "store/setup_editor.h"

namespace lad::shell {

namespace {

const std::pair<const char*, health::PregnancyDateField> kDateFields[] = {
    {"sdat1", health::PregnancyDateField::Sdat1},
    {"sdat2", health::PregnancyDateField::Sdat2},
    {"sbirthdate", health::PregnancyDateField::Sbirthdate},
};

std::string editorDate(const Context& context, const Map& setup, std::string_view key) {
  const auto date = setup[key].asDate();
  return date ? context.dates().dateToString(*date, "dd.MM.yyyy") : "";
}

List settingsRows(const Context& c, bool existing) {
  List rows{
      detailRow(c, kText, "Укажите первый день последней менструации или дату предполагаемых родов",
                ""),
      detailRow(c, kDate, "Первый день последней менструации", "sdat1", true),
      detailRow(c, kDate, "Дата родов", "sbirthdate", true),
      detailRow(c, kLine, "-", "line"),
      detailRow(c, kText,
                "Приблизительная дата зачатия рассчитывается автоматически исходя из даты первого "
                "дня последней менструации. Если Вы знаете точную дату зачатия - укажите ее ниже.",
                ""),
      detailRow(c, kDate, "Дата зачатия", "sdat2", true),
      detailRow(c, kLine, "", ""),
      detailRow(c, kText,
                "Укажите Ваш рост и вес до беременности (для построения графика прибавки веса)",
                ""),
      detailRow(c, kNumber, "Рост (см.)", "rost"),
      detailRow(c, kNumberWithIndex, "Вес (кг.)", "ves"),
      detailRow(c, kBodyIndex, "Индекс тела не определен\r\n", "bodytype"),
      detailRow(c, kLine, "", ""),
      detailRow(c, kText, "Если Вы уже знаете пол Вашего малыша - укажите его ниже", ""),
      detailRow(c, kSegments, "Не знаю|Мальчик|Девочка", "sex"),
      detailRow(c, kTextInput, "Имя малыша", "name"),
      detailRow(c, kPhoto, "", "photo"),
  };
  if (existing) rows.push_back(removalButton(c));
  return rows;
}

// The values the rows start from: the stored profile, its dates in the editor's form.
Map settingsValues(const Context& c, const Map& setup, const std::optional<std::string>& gid) {
  Map values;
  values.set("sdat1", editorDate(c, setup, "dat1"));
  values.set("sdat2", editorDate(c, setup, "dat2"));
  values.set("sbirthdate", editorDate(c, setup, "birthdate"));
  for (const char* key : {"rost", "ves", "sex", "bodytype", "name"}) values.set(key, setup[key]);
  startWithPortrait(c, values, gid);
  return values;
}

}  // namespace

ProfileDialog::ProfileDialog(Application& app, std::optional<std::string> gid)
    : app_(app),
      gid_(std::move(gid)),
      code_(gid_ ? kChangedProfile : kNewProfile),
      editor_(app.context(), gid_ ? "Настройки" : "Новая беременность",
              settingsRows(app.context(), gid_.has_value()),
              settingsValues(app.context(), loadSetupData(app.store(), gid_), gid_)) {}

// The portrait is written or removed when the dialog is finished.
void ProfileDialog::changePhoto(const Value& picture) {
  markPortraitChange(editor_, picture);
}

std::optional<MessageBox> ProfileDialog::change(std::string_view field, const Value& value) {
  if (!editor_.change(field, value)) return std::nullopt;
  if (field == "photo") changePhoto(value);
  std::optional<MessageBox> refusal;
  for (const auto& [name, date] : kDateFields)
    if (field == name) correctDates(date, refusal);
  if (field == "rost" || field == "ves") correctBodyIndex();
  return refusal;
}

void ProfileDialog::correctDates(health::PregnancyDateField changed,
                                 std::optional<MessageBox>& refusal) {
  const Context& c = app_.context();
  const health::PregnancyDateTexts dates{editor_.text("sdat1"), editor_.text("sdat2"),
                                         editor_.text("sbirthdate")};
  const health::DateCorrection corrected = setupCorrectDate(c, dates, changed);
  editor_.change("sdat1", Value(corrected.fields.sdat1));
  editor_.change("sdat2", Value(corrected.fields.sdat2));
  editor_.change("sbirthdate", Value(corrected.fields.sbirthdate));
  if (corrected.refusal)
    refusal = MessageBox::make(c, corrected.refusal->text, corrected.refusal->caption);
}

void ProfileDialog::correctBodyIndex() {
  const health::BodyIndex index =
      lad::health::correctBodyIndex(app_.context(), editor_.text("rost"), editor_.text("ves"));
  editor_.setRowKey("bodytype", "caption", Value(index.text));
  editor_.change("bodytype", Value(index.bodytype));
}

std::optional<Question> ProfileDialog::removalQuestion() const {
  return profileRemovalQuestion(app_.context());
}

// No rows at all stand for the removal when the profile is saved.
void ProfileDialog::confirmRemoval() {
  removed_ = true;
  code_ = kChangedProfile;
}

std::string ProfileDialog::finish(std::string* photoError) {
  const std::string gid = code_ == kNewProfile ? newID() : gid_.value_or("");
  Store& store = app_.store();
  saveSetupData(store, kSetupFromEditor,
                setupArrayToDic(store, removed_ ? List() : editor_.rows(), gid, photoError), gid);
  return gid;
}

}  // namespace lad::shell
