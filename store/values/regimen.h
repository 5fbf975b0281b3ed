// One medicine course as the `pills` value holds it: a JSON object of text members, repeated
// with the same key on every day the course touches.
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "core/value.h"

namespace lad {

struct Regimen {
  std::string pillname;    // guid of a medicine (list 101)
  std::string pilldoza;    // amount "<td>" unit
  std::string pillinter;   // count "<td>" "раз в день" or "раз в сутки"
  std::string pillperiod;  // guid of a periodicity (list 102)
  std::string pilleat;     // guid of a relation to food (list 103)
  std::string pilllength;  // count "<td>" "дни", "недели" or "месяцы"
  std::string pillsdate;   // first day, "dd.MM.yyyy"
  std::string pilltime;    // "HH:mm" times joined by "<td>"; empty for a course of the older kind
  std::string key;         // ties the copies of the course over its days

  // A member that is absent or not a text reads as empty; anything but a map is all empty.
  static Regimen fromValue(const Value& object);
  // The members that are not empty, in the order above.
  Value toValue() const;
};

// The two fields of a "<td>" pair such as "3<td>шт."; the second is empty when the value has none.
std::pair<std::string, std::string> pairOf(std::string_view value);

}  // namespace lad
