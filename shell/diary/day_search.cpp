#include "shell/diary/day_search.h"

#include <array>
#include <utility>

#include "core/context.h"
#include "core/text_fold.h"
#include "store/keywords.h"

namespace lad::shell {

namespace {

// The names a field is searched by.
constexpr std::array<std::pair<std::string_view, std::string_view>, 24> kFieldNames{{
    {"changes", "Изменения"}, {"fillings", "Ощущения"},  {"fillings", "Недомогания"},
    {"doctor", "Доктор"},     {"bolezn", "Болезнь"},     {"ves", "Вес"},
    {"temp", "Температура"},  {"pills", "Лекарства"},    {"alarm", "Напоминания"},
    {"uzi", "УЗИ"},           {"analizy", "Анализы"},    {"birthresult", "Роды"},
    {"note", "Заметки"},      {"health", "Недомогания"}, {"priv", "Прививки"},
    {"rost", "Рост"},         {"smile", "Веселые"},      {"biosize", "Биометрика"},
    {"tooth", "Зубы"},        {"sliz", "Слизь"},         {"sex", "Секс"},
    {"dieta", "Диета"},       {"sleep", "Сон"},          {"walk", "Прогулка"},
}};

bool namesField(const Context& context, std::string_view field, std::string_view folded) {
  for (const auto& [name, caption] : kFieldNames)
    if (name == field && foldCase(context.translate(caption)) == folded) return true;
  return false;
}

bool hasValue(const Value& row) {
  return !row["source"].text().empty() || !row["text"].text().empty();
}

bool holds(const Value& text, std::string_view folded) {
  return containsFolded(foldCase(text.text()), folded);
}

// The lines of a multi-line row searched under the keys given.
bool linesHold(const Value& row, std::initializer_list<std::string_view> keys,
               std::string_view folded) {
  const List* lines = row["multiarray"].asList();
  if (!lines) return false;
  for (const Value& line : *lines)
    for (std::string_view key : keys)
      if (holds(line[std::string(key)], folded)) return true;
  return false;
}

bool rowHolds(const Value& row, std::string_view folded) {
  const std::int64_t kind = row["tp"].intValue();
  if (kind == kKindTemperature || kind == kKindAlarm)
    return linesHold(row, {"cap", "time"}, folded);
  if (kind == kKindPills) return linesHold(row, {"text"}, folded);
  return holds(row["text"], folded);
}

}  // namespace

bool dayMatches(const Context& context, const List& rows, std::string_view search) {
  const std::string folded = foldCase(search);
  for (const Value& row : rows)
    if (hasValue(row) && namesField(context, row["field"].text(), folded)) return true;
  for (const Value& row : rows)
    if (hasValue(row) && rowHolds(row, folded)) return true;
  return false;
}

}  // namespace lad::shell
