#include "core/json_text.h"

namespace lad {

bool jsonIs(std::optional<std::string_view> text) {
  return text && !text->empty() && (text->front() == '[' || text->front() == '{');
}

Value jsonToDictionary(std::optional<std::string_view> text) {
  if (!text) return {};
  return Value::fromJson(*text).value_or(Value());
}

Value jsonToArray(std::optional<std::string_view> text) {
  return jsonToDictionary(text);
}

std::string jsonFromObject(const Value& value) {
  if (!value.asList() && !value.asMap()) return {};
  return value.toJson(2);
}

}  // namespace lad
