#include "shell/diary/day_editor.h"

#include <charconv>

#include "cloud/cloud_writers.h"
#include "core/context.h"
#include "core/text_fill.h"
#include "health/child_teeth.h"
#include "shell/child/feeding_screen.h"
#include "shell/diary/day_cells.h"
#include "shell/list_choice.h"
#include "shell/popup_menu.h"
#include "shell/question.h"
#include "shell/views/diary.h"
#include "shell/wheel_picker.h"
#include "store/day_loader.h"
#include "store/day_photo.h"
#include "store/dictionary.h"
#include "store/keywords.h"
#include "store/records.h"
#include "store/values/reading_forms.h"
#include "store/values/today_note.h"

namespace lad::shell {

namespace {

constexpr std::string_view kClose = "day:close";
constexpr std::string_view kPrev = "day:prev";
constexpr std::string_view kNext = "day:next";
constexpr std::string_view kDate = "day:date";
constexpr std::string_view kRowPrefix = "day:row:";
constexpr std::string_view kLinePrefix = "day:line:";
constexpr std::string_view kNumberPrefix = "day:number:";
constexpr std::string_view kPhoto = "day:photo";
constexpr std::string_view kPhotoClear = "day:photo:clear";
constexpr std::string_view kFeeding = "day:feeding";
constexpr int kConsent = 1;  // "Да" of a question, the tick of a picker
constexpr int kEditItem = 0;
constexpr int kDeleteItem = 1;
constexpr int kDayTypes = 6;

// Kinds whose editor this build has; the others are shown and wait for theirs.
bool editable(std::int64_t kind) {
  switch (kind) {
    case kKindMulti:
    case kKindChoice:
    case kKindText:
    case kKindTemperature:
    case kKindAlarm:
    case kKindHeight:
    case kKindWeight:
    case kKindIllness:
    case kKindDayType:
    case 9:
    case 15:
    case kKindBirth:
    case kKindPills:
    case kKindTeeth:
    case kKindSpans:
    case 30:
    case 31:
      return true;
    default:
      return false;
  }
}

bool inPlace(std::int64_t kind) {
  return kind == kKindHeight || kind == kKindWeight;
}

bool reloadsDictionary(std::int64_t kind) {
  return kind == kKindMulti || kind == kKindChoice || kind == kKindIllness || kind == kKindPills ||
         kind == 26;
}

std::string indexTarget(std::string_view prefix, std::size_t index) {
  return std::string(prefix) + std::to_string(index);
}

// "12", or "12:3" with pos: numbers after the prefix.
std::optional<std::size_t> readIndex(std::string_view text, int* pos) {
  std::size_t index = 0;
  auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), index);
  if (ec != std::errc()) return std::nullopt;
  const char* last = text.data() + text.size();
  if (pos && end < last && *end == ':') {
    auto [posEnd, posEc] = std::from_chars(end + 1, last, *pos);
    if (posEc != std::errc() || posEnd != last) return std::nullopt;
    return index;
  }
  return end == last && !pos ? std::optional(index) : std::nullopt;
}

// A number typed into a weight or a height: decimal comma or point, nothing else.
std::optional<double> typedNumber(std::string text) {
  for (char& c : text)
    if (c == ',') c = '.';
  double value = 0;
  auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (ec != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return value;
}

ButtonView button(const Context& context, std::string_view id, std::string_view caption) {
  return {std::string(id), context.translate(caption), std::nullopt};
}

}  // namespace

DayEditor::DayEditor(Application& app, ScreenHost& host, std::string gid, Date day)
    : app_(app), host_(host), gid_(std::move(gid)), day_(day) {
  prepare(day);
}

void DayEditor::prepare(Date day) {
  day_ = day;
  needSave_ = photoChanged_ = false;
  newPhoto_.reset();
  form_.reset();
  listData_ = loadConstList(app_.store(), 0, std::nullopt);
  const Map loaded = todayNoteForDay(app_.store(), day, gid_);
  rows_.clear();
  noteStructToTodayNote(app_.context(), loaded, rows_, listData_);
  // The teeth form starts from the teeth present before the day.
  for (Value& row : rows_)
    if (row["tp"].intValue() == kKindTeeth)
      row.asMap()->set("oldtooth", health::toothForDay(app_.store(), day, gid_));
  stored_ = Map();
  for (const Value& row : rows_) stored_.set(row["field"].text(), row["source"].text());
  storedPhoto_ = hasPhoto_ = loaded["isphoto"].boolValue();
  photoPath_ = loaded["photopath"].text();
}

Value DayEditor::view() {
  if (form_) return form_->form.view();
  const Context& context = app_.context();
  DayEditorView v;
  v.title = context.dates().dateToString(day_, "dd.MM.yyyy");
  v.close = button(context, kClose, "Готово");
  v.prev = {std::string(kPrev), "‹", std::nullopt};
  v.next = {std::string(kNext), "›", std::nullopt};
  v.date = {std::string(kDate), v.title, std::nullopt};
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    const Value& row = rows_[i];
    const std::int64_t kind = row["tp"].intValue();
    if (kind == kKindPhoto) continue;
    DayRowView r = dayRowView(row);
    r.id = indexTarget(kRowPrefix, i);
    if (row["multiarray"].asList() && r.lines.empty()) r.text = context.translate("пусто");
    r.enabled = editable(kind);
    if (inPlace(kind)) {
      r.id = indexTarget(kNumberPrefix, i);
      r.number = row["source"].text();
    }
    for (std::size_t pos = 0; pos < r.lines.size() && r.enabled; ++pos)
      r.lines[pos].id = indexTarget(kLinePrefix, i) + ":" + std::to_string(pos);
    v.rows.push_back(std::move(r));
  }
  if (isChildEdition(context.values().appid))
    v.rows.push_back(feedingDayRow(app_, gid_, day_, std::string(kFeeding)));
  v.photo = {context.translate("Фото"),
             "",
             std::string(kPhoto),
             button(context, "day:photo:camera", "Новая фотография"),
             button(context, "day:photo:album", "Из альбома"),
             button(context, kPhotoClear, "Очистить")};
  if (newPhoto_)
    v.photo.picture = previews_.of(*newPhoto_);
  else if (hasPhoto_)
    v.photo.picture = pictureAddress(photoPath_);
  return v.toValue();
}

std::optional<std::size_t> DayEditor::rowAt(std::string_view target, std::string_view prefix,
                                            int* pos) const {
  if (!target.starts_with(prefix)) return std::nullopt;
  const auto index = readIndex(target.substr(prefix.size()), pos);
  if (!index || *index >= rows_.size()) return std::nullopt;
  return index;
}

Map& DayEditor::row(std::size_t index) {
  return *rows_[index].asMap();
}

EventResult DayEditor::tap(std::string_view target) {
  if (form_) return tapForm(target);
  if (target == kClose) return leave([this] { closed_ = true; });
  if (target == kPrev) return leave([this] { prepare(app_.context().dates().addDays(day_, -1)); });
  if (target == kNext) return leave([this] { prepare(app_.context().dates().addDays(day_, 1)); });
  if (target == kDate) {
    pickDay();
    return {};
  }
  if (target == kFeeding && isChildEdition(app_.context().values().appid))
    return leave([this] { host_.push(std::make_shared<FeedingScreen>(app_, host_, gid_, day_)); });
  if (target == kPhotoClear) {
    hasPhoto_ = false;
    newPhoto_.reset();
    photoChanged_ = needSave_ = true;
    return {};
  }
  int pos = -1;
  if (auto index = rowAt(target, kLinePrefix, &pos);
      index && editable(row(*index)["tp"].intValue())) {
    offerEntry(*index, pos);
    return {};
  }
  if (auto index = rowAt(target, kRowPrefix)) return tapRow(*index);
  return EventResult::refused("the day has no control " + std::string(target));
}

EventResult DayEditor::tapRow(std::size_t index) {
  const std::int64_t kind = row(index)["tp"].intValue();
  if (!editable(kind) || inPlace(kind))
    return EventResult::refused("this field is not edited by a tap here");
  // A birth already recorded is taken back by a touch.
  if (kind == kKindBirth && !row(index)["source"].text().empty()) {
    setSource(row(index), "");
    return {};
  }
  if (kind == kKindDayType) {
    pickDayType(index);
    return {};
  }
  openForm(index, -1);
  return {};
}

// The six kinds of a day of the cycle; an ordinary day keeps no record.
void DayEditor::pickDayType(std::size_t index) {
  std::string entries;
  for (int type = 1; type <= kDayTypes; ++type)
    entries += (type > 1 ? "<br>" : "") + womanDayToRead(app_.context(), type);
  host_.openPopup(std::make_unique<ListChoice>(app_.context(), entries, "Отменить"),
                  [this, index](const PopupAnswer& answer) {
                    const int type = answer.button + 1;
                    if (type >= 1 && type <= kDayTypes)
                      setSource(row(index), type == 1 ? "" : std::to_string(type));
                    return EventResult();
                  });
}

void DayEditor::openForm(std::size_t index, int pos) {
  if (auto form = DayRowForm::open(app_, row(index), pos, day_))
    form_.emplace(OpenForm{index, std::move(*form)});
}

// An entry of a multi-entry field: edit it or take it out.
void DayEditor::offerEntry(std::size_t index, int pos) {
  host_.openPopup(std::make_unique<PopupMenu>(
                      app_.context(), "Редактировать<td>pm-edit.png<tr>Удалить<td>pm-clear.png"),
                  [this, index, pos](const PopupAnswer& answer) {
                    if (answer.button == kEditItem) openForm(index, pos);
                    if (answer.button == kDeleteItem)
                      setSource(row(index), withoutEntry(row(index)["source"].text(), pos));
                    return EventResult();
                  });
}

EventResult DayEditor::tapForm(std::string_view target) {
  std::optional<MessageBox> refusal;
  const DayRowForm::Outcome outcome = form_->form.tap(target, &refusal);
  if (refusal) host_.showMessage(std::move(*refusal));
  if (outcome == DayRowForm::Outcome::kDone) {
    Map& edited = row(form_->row);
    const std::string value = form_->form.value();
    form_.reset();
    if (reloadsDictionary(edited["tp"].intValue()))
      listData_ = loadConstList(app_.store(), 0, std::nullopt);
    setSource(edited, value);
  } else if (outcome == DayRowForm::Outcome::kCancelled) {
    form_.reset();
  } else if (outcome == DayRowForm::Outcome::kPick) {
    pickForForm(form_->form.takePick());
  }
  return {};
}

// A row of the open form picked on wheels: the answer goes into that row.
void DayEditor::pickForForm(DayRowForm::Pick pick) {
  host_.openPopup(
      std::move(pick.popup), [this, target = std::move(pick.target)](const PopupAnswer& answer) {
        if (answer.button == kConsent && form_ && !form_->form.change(target, answer.value))
          return EventResult::refused("the form took no value for " + target);
        return EventResult();
      });
}

void DayEditor::setSource(Map& row, std::string source) {
  row.set("source", std::move(source));
  const std::int64_t kind = row["tp"].intValue();
  if (inPlace(kind)) row.set("active", leadingDouble(row["source"].text()) > 0);
  updateNoteToday(app_.context(), row, listData_, day_);
  needSave_ = true;
}

EventResult DayEditor::change(std::string_view target, const Value& value) {
  if (form_) {
    if (!form_->form.change(target, value))
      return EventResult::refused("the form has no field " + std::string(target));
    return {};
  }
  if (target == kPhoto) return changePhoto(value);
  if (auto index = rowAt(target, kNumberPrefix); index && inPlace(row(*index)["tp"].intValue()))
    return changeNumber(row(*index), value);
  return EventResult::refused("the day has no input " + std::string(target));
}

// A weight with three decimals, a height with one, as their scales write them; nothing or a
// value at or below 0 empties the field.
EventResult DayEditor::changeNumber(Map& row, const Value& value) {
  const std::string text = value.text();
  const auto number = text.empty() ? std::optional<double>(0) : typedNumber(text);
  if (!number) {
    host_.showMessage(MessageBox::make(app_.context(), "Введите число", "Ошибка"));
    return {};
  }
  const int decimals = row["tp"].intValue() == kKindWeight ? 3 : 1;
  setSource(row, *number > 0 ? formatFixed(*number, decimals) : "");
  return {};
}

EventResult DayEditor::changePhoto(const Value& value) {
  std::string why;
  auto picture = pictureFromDataUrl(value.text(), &why);
  if (!picture) {
    host_.showMessage(
        MessageBox::make(app_.context(), "Не удалось прочитать фотографию", "Ошибка"));
    return {};
  }
  newPhoto_ = std::move(*picture);
  hasPhoto_ = photoChanged_ = needSave_ = true;
  return {};
}

void DayEditor::pickDay() {
  host_.openPopup(
      std::make_unique<WheelPicker>(app_.context(), kDatePicker, "Укажите дату",
                                    app_.context().dates().dateToString(day_, "dd.MM.yyyy")),
      [this](const PopupAnswer& answer) {
        if (answer.button != kConsent) return EventResult();
        const auto day =
            app_.context().dates().dateFromStringFormat(answer.value.text(), "dd.MM.yyyy");
        if (!day) return EventResult::refused("the date picker gave no date");
        return leave([this, day = *day] { prepare(day); });
      });
}

bool DayEditor::storedDayChanged() {
  const Map now = todayNoteForDay(app_.store(), day_, gid_);
  if (now["isphoto"].boolValue() != storedPhoto_) return true;
  List rows;
  noteStructToTodayNote(app_.context(), now, rows, listData_);
  for (const Value& row : rows)
    if (row["source"].text() != stored_[row["field"].text()].text()) return true;
  return false;
}

EventResult DayEditor::leave(std::function<void()> then) {
  if (!needSave_) {
    then();
    return {};
  }
  if (!storedDayChanged()) {
    EventResult result = write();
    then();
    return result;
  }
  host_.openPopup(std::make_unique<Question>(Question::ask(
                      app_.context(),
                      "Этот день изменили в другом окне, пока он был открыт здесь. Сохранить "
                      "то, что видно здесь?",
                      "Дневник")),
                  [this, then = std::move(then)](const PopupAnswer& answer) {
                    EventResult result = answer.button == kConsent ? write() : EventResult();
                    then();
                    return result;
                  });
  return {};
}

EventResult DayEditor::write() {
  // A new picture replaces the old files whole; a failed write keeps them.
  std::string why;
  if (photoChanged_ && !newPhoto_) removeDayPhoto(app_.context(), day_, gid_);
  if (newPhoto_ && !saveDayPhoto(app_.context(), day_, gid_, *newPhoto_, &why))
    host_.showMessage(
        MessageBox::make(app_.context(), "Не удалось сохранить фотографию", "Ошибка"));
  saveNoteData(app_.store(), kNoteFromEditor, rows_, listData_, gid_, day_);
  cloud::cloudDayChanged(app_.store(), day_, gid_);
  needSave_ = false;
  EventResult result;
  result.installationChanged = true;
  return result;
}

}  // namespace lad::shell
