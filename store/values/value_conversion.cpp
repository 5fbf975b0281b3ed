#include "store/values/value_conversion.h"

#include <algorithm>
#include <vector>

#include "core/edition.h"
#include "core/ids.h"
#include "core/json_text.h"
#include "core/text_parts.h"
#include "store/dictionary.h"
#include "store/file_names.h"
#include "store/values/picker_lists.h"

namespace lad {

namespace {

using Fields = std::vector<std::string_view>;

constexpr int kOldIndexGroup = 2;
constexpr std::string_view kListItem = "<tr>";
constexpr std::string_view kRecordItem = "<end>";
constexpr std::string_view kRecordField = "<table>";
constexpr std::string_view kPickerRow = "<td>";
constexpr const char* kMillilitres = "мил.";

std::string fieldAt(const Fields& fields, std::size_t at) {
  return at < fields.size() ? std::string(fields[at]) : std::string();
}

// The fixed guid that an old integer index of the dictionary stands for; empty stays empty.
std::string guidOfIndex(std::string_view index) {
  return index.empty() ? std::string() : newID2(kOldIndexGroup, leadingInteger(index));
}

Value pillFromOld(const Fields& fields, const List*) {
  static constexpr std::size_t kKeyField = 8;
  Map pill;
  pill.set("pillname", guidOfIndex(fieldAt(fields, 0)));
  pill.set("pilldoza", oldList("pilldoza", fieldAt(fields, 1)));
  pill.set("pillinter", oldList("pillinter", fieldAt(fields, 2)));
  pill.set("pillperiod", guidOfIndex(fieldAt(fields, 3)));
  pill.set("pilleat", guidOfIndex(fieldAt(fields, 4)));
  pill.set("pilllength", oldList("pilllength", fieldAt(fields, 5)));
  pill.set("pillsdate", fieldAt(fields, 6));
  pill.set("pilltime", fieldAt(fields, 7));
  if (fields.size() > kKeyField) pill.set("key", fieldAt(fields, kKeyField));
  return Value(std::move(pill));
}

// Drops the last character of a UTF-8 text, with all of its bytes.
void dropLastCharacter(std::string& text) {
  while (!text.empty() && (static_cast<unsigned char>(text.back()) & 0xC0) == 0x80) text.pop_back();
  if (!text.empty()) text.pop_back();
}

// The unit of a food: what its dictionary name holds in brackets, "Смесь (мл.)" giving "мл.".
std::string foodMeasure(const std::string& guid, const List* clist) {
  const Value* entry = clist ? listByIndex(guid, *clist) : nullptr;
  if (!entry) return kMillilitres;
  const std::string name = (*entry)["cap"].text();
  const std::string head = name.substr(0, name.find(kListItem));
  const auto open = head.find('(');
  if (open == std::string::npos) return kMillilitres;
  std::string measure = head.substr(open + 1);
  dropLastCharacter(measure);
  return measure;
}

Value feedingFromOld(const Fields& fields, const List* clist) {
  constexpr std::int64_t kBreast = 1, kNamedDrink = 3, kNamedFood = 4, kFoodOwnMeasure = 7;
  static constexpr std::int64_t kDictionaryFoods[] = {2, 5, 6, kFoodOwnMeasure};
  Map feeding;
  const std::string kindText = fieldAt(fields, 0);
  const std::int64_t kind = leadingInteger(kindText);
  feeding.set("tp", kindText);
  if (kind == kBreast) {
    feeding.set("tip", "Грудное молоко");
    feeding.set("left", fieldAt(fields, 1));
    feeding.set("right", fieldAt(fields, 2));
  } else if (std::ranges::find(kDictionaryFoods, kind) != std::end(kDictionaryFoods)) {
    const std::string tip = guidOfIndex(fieldAt(fields, 1));
    feeding.set("tip", tip);
    feeding.set("volume", fieldAt(fields, 2));
    feeding.set("measure", kind == kFoodOwnMeasure ? foodMeasure(tip, clist) : kMillilitres);
  } else if (kind == kNamedDrink || kind == kNamedFood) {
    feeding.set("tip", fieldAt(fields, 1));
    feeding.set("measure", kind == kNamedDrink ? kMillilitres : "г.");
    feeding.set("volume", fieldAt(fields, 2));
  }
  return Value(std::move(feeding));
}

// How the old value of a keyword is laid out. Without an item separator the whole value is one
// object. The fields go to the keys in order, or through a reader of their own.
struct OldForm {
  std::vector<std::string_view> keywords;
  std::string_view itemSeparator;
  std::string_view fieldSeparator;
  std::vector<const char*> keys;
  Value (*read)(const Fields&, const List*) = nullptr;
};

const std::vector<OldForm>& oldForms() {
  static const std::vector<OldForm> forms{
      {{"uzi"}, "", kListItem, {"rost", "ves"}},
      {{"birthresult"}, "", kListItem, {"rost", "ves", "type", "time"}},
      {{"biosize"}, "", kListItem, {"bio1", "bio2", "bio3", "bio4", "bio5"}},
      {{"kovalue"}, "", kListItem, {}, feedingFromOld},
      {{"temp", "alarm"}, kListItem, "<td>", {"time", "temp"}},
      {{"pressure"}, kRecordItem, kRecordField, {"time", "pressure1", "pressure2", "comment"}},
      {{"zhid"}, kRecordItem, kRecordField, {"time", "in", "out", "comment"}},
      {{"sleep", "walk"}, kRecordItem, kRecordField, {"start", "end", "interval"}},
      {{"pills"}, kRecordItem, kRecordField, {}, pillFromOld},
      {{"analizy", "documents"}, kListItem, "<br>", {"tp", "captiontype", "file", "tag"}},
  };
  return forms;
}

const OldForm* oldFormOf(std::string_view keyword) {
  for (const OldForm& form : oldForms())
    if (std::ranges::find(form.keywords, keyword) != form.keywords.end()) return &form;
  return nullptr;
}

// Old attachment files of the child diary were named by number; they carry guids now.
bool renamesFiles(int appid, std::string_view keyword) {
  return isChildEdition(appid) && (keyword == "analizy" || keyword == "documents");
}

Value readItem(int appid, std::string_view keyword, const OldForm& form, std::string_view item,
               const List* clist) {
  const Fields fields = splitOn(item, form.fieldSeparator);
  if (form.read) return form.read(fields, clist);
  Map object;
  for (std::size_t i = 0; i < form.keys.size(); ++i) object.set(form.keys[i], fieldAt(fields, i));
  if (renamesFiles(appid, keyword)) object.set("file", oldFileNameToNew(object["file"].text()));
  return Value(std::move(object));
}

bool isIndexList(std::string_view keyword) {
  static constexpr std::string_view kIndexLists[] = {"changes", "fillings", "bolezn", "allergen"};
  return std::ranges::find(kIndexLists, keyword) != std::end(kIndexLists);
}

std::string guidsOfIndexes(std::string_view value) {
  std::string guids;
  bool first = true;
  for (const std::string_view index : splitOn(value, kListItem)) {
    if (!first) guids += kListItem;
    guids += guidOfIndex(index);
    first = false;
  }
  return guids;
}

int pickerOfField(std::string_view field) {
  if (field == "pilllength") return kLengthPicker;
  if (field == "pilldoza") return kDosePicker;
  if (field == "pillinter") return kFrequencyPicker;
  return 0;
}

}  // namespace

std::string oldList(std::string_view field, std::string_view rows) {
  const int set = pickerOfField(field);
  if (set == 0 || rows.empty()) return std::string(rows);
  const Fields parts = splitOn(rows, kPickerRow);
  return valueFromList(set, 0, leadingInteger(parts[0])) + std::string(kPickerRow) +
         valueFromList(set, 1, leadingInteger(fieldAt(parts, 1)));
}

Value oldValueToDic(int appid, std::string_view keyword, std::string_view item, const List* clist) {
  const OldForm* form = oldFormOf(keyword);
  return form ? readItem(appid, keyword, *form, item, clist) : Value(Map());
}

std::string oldValueToJson(int appid, std::string_view keyword, std::string_view value,
                           const List* clist) {
  if (isIndexList(keyword)) return guidsOfIndexes(value);
  const OldForm* form = oldFormOf(keyword);
  if (!form) return std::string(value);
  if (form->itemSeparator.empty())
    return jsonFromObject(readItem(appid, keyword, *form, value, clist));
  List items;
  for (const std::string_view item : splitOn(value, form->itemSeparator))
    items.push_back(readItem(appid, keyword, *form, item, clist));
  return jsonFromObject(Value(std::move(items)));
}

}  // namespace lad
