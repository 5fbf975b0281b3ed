#include "store/values/reading_forms.h"

#include <array>
#include <utility>
#include <vector>

#include "core/json_text.h"
#include "core/text_parts.h"
#include "store/dictionary.h"

namespace lad {
namespace {

constexpr std::string_view kItemSeparator = "<tr>";

void appendLine(std::string& text, std::string_view line) {
  if (!text.empty()) text += '\n';
  text += line;
}

std::string replacePlaceholder(std::string format, std::string_view value) {
  static constexpr std::string_view kPlaceholder = "%@";
  const auto at = format.find(kPlaceholder);
  if (at != std::string::npos) format.replace(at, kPlaceholder.size(), value);
  return format;
}

}  // namespace

std::string toothName(std::int64_t code) {
  static constexpr std::array<const char*, 20> kNames{"верхний второй коренной (55)",
                                                      "верхний первый коренной (54)",
                                                      "верхний клык (53)",
                                                      "верхний боковой резец (52)",
                                                      "верхний центральный резец (51)",
                                                      "верхний центральный резец (61)",
                                                      "верхний боковой резец (62)",
                                                      "верхний клык (63)",
                                                      "верхний первый коренной (64)",
                                                      "верхний второй коренной (65)",
                                                      "нижний второй коренной (85)",
                                                      "нижний первый коренной (84)",
                                                      "нижний клык (83)",
                                                      "нижний боковой резец (82)",
                                                      "нижний центральный резец (81)",
                                                      "нижний центральный резец (71)",
                                                      "нижний боковой резец (72)",
                                                      "нижний клык (73)",
                                                      "нижний первый коренной (74)",
                                                      "нижний второй коренной (75)"};
  if (code < 1 || code > static_cast<std::int64_t>(kNames.size())) return "";
  return kNames[code - 1];
}

std::string checkStringToRead(const std::optional<std::string>& value, const List& entries) {
  std::string text;
  if (!value) return text;
  for (std::string_view guid : splitOn(*value, kItemSeparator)) {
    const Value* entry = listByIndex(std::string(guid), entries);
    if (!entry) continue;
    const std::string name = (*entry)["cap"].text();
    appendLine(text, std::string_view(name).substr(0, name.find(kItemSeparator)));
  }
  return text;
}

std::string toothStringToRead(const Context& context, const std::optional<std::string>& value) {
  std::string text;
  if (!value || value->empty()) return text;
  for (std::string_view part : splitOn(*value, kItemSeparator)) {
    std::int64_t code = leadingInteger(part);
    const bool fellOut = code > 100;
    if (fellOut) code -= 100;
    const std::string name = toothName(code);
    appendLine(text, context.translate(fellOut ? "Выпал " : "Прорезался ") +
                         (name.empty() ? "" : context.translate(name)));
  }
  return text;
}

std::string analizyStringToRead(const std::optional<std::string>& value, const List& entries) {
  std::string text;
  if (!jsonIs(value)) return text;
  const Value tests = jsonToArray(value);
  const List* items = tests.asList();
  if (!items) return text;
  for (std::size_t position = 0; position < items->size(); ++position) {
    const Value& caption = (*items)[position]["captiontype"];
    if (caption.isNull()) continue;
    const Value* entry = listByIndex(caption.text(), entries);
    if (!entry) continue;
    if (position > 0) text += ", ";
    text += (*entry)["cap"].text();
  }
  return text;
}

std::string dietaStringToRead(const Context& context, const std::optional<std::string>& value) {
  static constexpr std::array<std::pair<int, const char*>, 11> kDiets{{
      {11, "Кремлевская диета"},
      {21, "Диета Дюкана (Атака)"},
      {22, "Диета Дюкана (Круиз)"},
      {23, "Диета Дюкана (Консолидация)"},
      {24, "Диета Дюкана (Стабилизация)"},
      {31, "Английская диета"},
      {41, "Японская диета"},
      {51, "Гречневая диета"},
      {61, "Кефирная диета"},
      {71, "Диета -60"},
      {1000, "Диета прекращена"},
  }};
  if (!value || value->empty()) return "";
  const std::int64_t number = leadingInteger(*value);
  for (const auto& [diet, name] : kDiets)
    if (diet == number) return context.translate(name);
  return "";
}

std::string biosizeStringToRead(const Context& context, const std::optional<std::string>& value) {
  static constexpr std::array<std::pair<const char*, const char*>, 5> kMeasures{{
      {"bio1", "Окружность головы: %@"},
      {"bio2", "Обхват груди: %@"},
      {"bio3", "Обхват талии: %@"},
      {"bio4", "Обхват бедер: %@"},
      {"bio5", "Длина стопы: %@"},
  }};
  std::string text;
  if (!jsonIs(value)) return text;
  const Value sizes = jsonToDictionary(value);
  for (const auto& [key, format] : kMeasures) {
    const std::string size = sizes[key].text();
    if (!size.empty()) appendLine(text, replacePlaceholder(context.translate(format), size));
  }
  return text;
}

std::string womanDayToRead(const Context& context, int kind) {
  static constexpr std::array<const char*, 5> kKinds{
      "Первый день месячных", "Последний день месячных", "Овуляция", "Первый день беременности",
      "Последний день беременности"};
  constexpr int kFirstKind = 2;
  const int at = kind - kFirstKind;
  if (at < 0 || at >= static_cast<int>(kKinds.size())) return context.translate("Обычный день");
  return context.translate(kKinds[at]);
}

std::string intervalToRead2(const Value& span) {
  if (!span.asMap()) return "";
  return "с " + span["start"].text() + " до " + span["end"].text() + " (" +
         span["interval"].text() + ")";
}

}  // namespace lad
