#include "shell/profile_dialog.h"

#include "core/atomic_file.h"
#include "core/ids.h"
#include "health/body_index.h"
#include "health/pregnancy_dates.h"
#include "shell/editor/detail_rows.h"
#include "store/folders.h"
#include "store/setup_data.h"
#include "store/setup_editor.h"

namespace lad::shell {

namespace {

const std::pair<const char*, PregnancyDateField> kDateFields[] = {
    {"sdat1", PregnancyDateField::Sdat1},
    {"sdat2", PregnancyDateField::Sdat2},
    {"sbirthdate", PregnancyDateField::Sbirthdate},
};

std::string editorDate(const Context& context, const Map& setup, std::string_view key) {
  const auto date = setup[key].asDate();
  return date ? context.dates().dateToString(*date, "dd.MM.yyyy") : "";
}

std::optional<Bytes> portraitOf(const Context& context, const std::string& gid) {
  const auto bytes = readWholeFile(portraitFile(context, gid));
  if (!bytes) return std::nullopt;
  return Bytes(bytes->begin(), bytes->end());
}

}  // namespace

ProfileDialog::ProfileDialog(Application& app, std::optional<std::string> gid)
    : app_(app),
      gid_(std::move(gid)),
      caption_(app.context().translate(gid_ ? "Настройки" : "Новая беременность")),
      code_(gid_ ? kChangedProfile : kNewProfile) {
  const Context& c = app.context();
  const Map setup = loadSetupData(app.store(), gid_);
  rows_ = {
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
  if (gid_) {
    Value remove = detailRow(c, kButton, "Удалить учетную запись", "remove");
    remove.asMap()->set("pic", "b-orangeB.png");
    rows_.push_back(std::move(remove));
  }
  *source("sdat1") = editorDate(c, setup, "dat1");
  *source("sdat2") = editorDate(c, setup, "dat2");
  *source("sbirthdate") = editorDate(c, setup, "birthdate");
  for (const char* key : {"rost", "ves", "sex", "bodytype", "name"}) *source(key) = setup[key];
  if (gid_)
    if (auto portrait = portraitOf(c, *gid_)) *source("photo") = *portrait;
}

const Map* ProfileDialog::row(std::string_view field) const {
  for (const Value& r : rows_)
    if (r["field"].text() == field) return r.asMap();
  return nullptr;
}

Map* ProfileDialog::rowOf(std::string_view field) {
  for (Value& r : rows_)
    if (r["field"].text() == field) return r.asMap();
  return nullptr;
}

Value* ProfileDialog::source(std::string_view field) {
  Map* row = rowOf(field);
  return row ? row->find("source") : nullptr;
}

// The portrait is written or removed when the dialog is finished.
void ProfileDialog::changePhoto(const Value& picture) {
  Map* row = rowOf("photo");
  row->set("image", picture);
  row->set("save", picture.asBytes() ? kWritePhoto : kRemovePhoto);
}

std::optional<MessageBox> ProfileDialog::change(std::string_view field, const Value& value) {
  Value* target = source(field);
  if (!target) return std::nullopt;
  *target = value;
  if (field == "photo") changePhoto(value);
  std::optional<MessageBox> refusal;
  for (const auto& [name, date] : kDateFields)
    if (field == name) correctDates(date, refusal);
  if (field == "rost" || field == "ves") correctBodyIndex();
  return refusal;
}

void ProfileDialog::correctDates(PregnancyDateField changed, std::optional<MessageBox>& refusal) {
  const Context& c = app_.context();
  const PregnancyDateTexts dates{source("sdat1")->text(), source("sdat2")->text(),
                                 source("sbirthdate")->text()};
  const DateCorrection corrected = setupCorrectDate(c, dates, changed);
  *source("sdat1") = corrected.fields.sdat1;
  *source("sdat2") = corrected.fields.sdat2;
  *source("sbirthdate") = corrected.fields.sbirthdate;
  if (corrected.refusal)
    refusal = MessageBox::make(c, corrected.refusal->text, corrected.refusal->caption);
}

void ProfileDialog::correctBodyIndex() {
  const BodyIndex index =
      lad::correctBodyIndex(app_.context(), source("rost")->text(), source("ves")->text());
  for (Value& r : rows_)
    if (r["field"].text() == "bodytype") {
      r.asMap()->set("caption", index.text);
      r.asMap()->set("source", index.bodytype);
    }
}

Question ProfileDialog::removalQuestion() const {
  return Question::ask(app_.context(), "Вы действительно хотите удалить эту учетную запись?",
                       "Удаление");
}

void ProfileDialog::confirmRemoval() {
  rows_.clear();
  code_ = kChangedProfile;
}

std::string ProfileDialog::finish(std::string* photoError) {
  const std::string gid = code_ == kNewProfile ? newID() : gid_.value_or("");
  Store& store = app_.store();
  saveSetupData(store, kSetupFromEditor, setupArrayToDic(store, rows_, gid, photoError), gid);
  return gid;
}

}  // namespace lad::shell
