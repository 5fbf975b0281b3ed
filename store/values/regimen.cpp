#include "store/values/regimen.h"

namespace lad {

namespace {

// The members by their key, so that reading and writing walk one table.
constexpr std::pair<const char*, std::string Regimen::*> kMembers[] = {
    {"pillname", &Regimen::pillname},
    {"pilldoza", &Regimen::pilldoza},
    {"pillinter", &Regimen::pillinter},
    {"pillperiod", &Regimen::pillperiod},
    {"pilleat", &Regimen::pilleat},
    {"pilllength", &Regimen::pilllength},
    {"pillsdate", &Regimen::pillsdate},
    {"pilltime", &Regimen::pilltime},
    {"key", &Regimen::key},
};

}  // namespace

Regimen Regimen::fromValue(const Value& object) {
  Regimen r;
  for (const auto& [name, member] : kMembers)
    if (const std::string* text = object[name].asText()) r.*member = *text;
  return r;
}

Value Regimen::toValue() const {
  Map object;
  for (const auto& [name, member] : kMembers)
    if (!(this->*member).empty()) object.set(name, this->*member);
  return Value(std::move(object));
}

std::pair<std::string, std::string> pairOf(std::string_view value) {
  const auto at = value.find("<td>");
  if (at == std::string_view::npos) return {std::string(value), ""};
  return {std::string(value.substr(0, at)), std::string(value.substr(at + 4))};
}

}  // namespace lad
