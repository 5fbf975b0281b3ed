#include "core/date_names.h"

#include <array>
#include <string_view>

namespace lad {

namespace {

// The name at a number counted from 1; a number out of range takes the last name.
template <std::size_t N>
std::string nameAt(const std::array<std::string_view, N>& names, int number,
                   const Translator& translator) {
  const bool inRange = number >= 1 && number <= static_cast<int>(N);
  return translator.translate(names[inRange ? static_cast<std::size_t>(number - 1) : N - 1]);
}

}  // namespace

std::string weekday(int day, const Translator& translator) {
  static constexpr std::array<std::string_view, 7> kNames{"вс", "пн", "вт", "ср", "чт", "пт", "сб"};
  return nameAt(kNames, day, translator);
}

std::string weekdayfull(int day, const Translator& translator) {
  static constexpr std::array<std::string_view, 7> kNames{
      "воскресенье", "понедельник", "вторник", "среда", "четверг", "пятница", "суббота"};
  return nameAt(kNames, day, translator);
}

std::string monthName(int month, const Translator& translator) {
  static constexpr std::array<std::string_view, 12> kNames{
      "январь", "февраль", "март",     "апрель",  "май",    "июнь",
      "июль",   "август",  "сентябрь", "октябрь", "ноябрь", "декабрь"};
  return nameAt(kNames, month, translator);
}

}  // namespace lad
