#include "health/birth_result.h"

#include <array>
#include <optional>

#include "core/context.h"
#include "core/json_text.h"
#include "health/calendar_text.h"

namespace lad::health {

namespace {

std::optional<Map> resultObject(const Value& birthresult) {
  const std::string* text = birthresult.asText();
  if (!text) return std::nullopt;
  Value parsed = jsonToDictionary(*text);
  if (const Map* object = parsed.asMap()) return *object;
  return std::nullopt;
}

// A member as the user typed it; a member that is absent or left empty is not known.
std::optional<std::string> known(const Map& result, std::string_view key) {
  const Value* v = result.find(key);
  if (!v) return std::nullopt;
  std::string text = v->text();
  if (text.empty()) return std::nullopt;
  return text;
}

std::string filled(const Context& context, std::string_view pattern, const std::string& value) {
  return fillIn(context.translate(pattern), {value});
}

}  // namespace

std::string shortBirthResult(const Context& context, const Value& birthresult) {
  const std::optional<Map> result = resultObject(birthresult);
  if (!result) return "-";
  const auto rost = known(*result, "rost");
  const auto ves = known(*result, "ves");
  if (rost && ves) return fillIn(context.translate("Рост: %@, Вес: %@"), {*rost, *ves});
  if (ves) return filled(context, "Вес: %@", *ves);
  if (rost) return filled(context, "Рост: %@", *rost);
  return {};
}

std::string longBirthResult(const Context& context, const Value& birthresult, std::int64_t sex) {
  const std::optional<Map> result = resultObject(birthresult);
  if (!result) return {};
  constexpr std::array<std::pair<std::string_view, std::string_view>, 3> kPieces{{
      {"rost", "рост: %@"},
      {"ves", "вес: %@"},
      {"time", "время рождения: %@"},
  }};
  std::string text;
  for (const auto& [key, pattern] : kPieces) {
    const auto value = known(*result, key);
    if (!value) continue;
    if (!text.empty()) text += ", ";
    text += filled(context, pattern, *value);
  }
  if (text.empty()) return text;
  constexpr std::array<std::string_view, 3> kBorn{"Родился малыш: %@", "Родился мальчик: %@",
                                                  "Родилась девочка: %@"};
  if (sex >= 0 && sex < static_cast<std::int64_t>(kBorn.size()))
    return filled(context, kBorn[static_cast<std::size_t>(sex)], text);
  return text;
}

}  // namespace lad::health
