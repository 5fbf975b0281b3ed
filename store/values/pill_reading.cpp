#include "store/values/pill_reading.h"

#include <algorithm>
#include <array>
#include <limits>

#include "core/context.h"
#include "core/word_forms.h"
#include "store/values/reading_forms.h"
#include "store/values/regimen.h"

namespace lad {

namespace {

struct WordForms {
  const char* one;
  const char* few;
  const char* many;
};

std::string counted(const Context& context, std::int64_t n, const WordForms& w) {
  return std::to_string(n) + " " +
         rusForms(n, context.translate(w.one), context.translate(w.few), context.translate(w.many));
}

std::optional<WordForms> lengthWords(std::string_view unit, bool nominative) {
  if (unit == "дни") return WordForms{"день", "дня", "дней"};
  if (unit == "недели") return WordForms{nominative ? "неделя" : "неделю", "недели", "недель"};
  if (unit == "месяцы") return WordForms{"месяц", "месяца", "месяцев"};
  return std::nullopt;
}

std::string lengthText(const Context& context, std::int64_t count, std::string_view unit,
                       bool nominative) {
  const auto words = lengthWords(unit, nominative);
  return words ? counted(context, count, *words) : std::to_string(count) + " ";
}

const std::array<WordForms, 9> kOldUnits{{
    {"миллилитр", "миллилитра", "миллилитров"},
    {"миллиграмм", "миллиграмма", "миллиграммов"},
    {"штука", "штуки", "штук"},
    {"мерная ложка", "мерные ложки", "мерных ложек"},
    {"чайная ложка", "чайные ложки", "чайных ложек"},
    {"столовая ложка", "столовые ложки", "столовых ложек"},
    {"кубический сантиметр", "кубических сантиметра", "кубических сантиметров"},
    {"впрыск", "впрыска", "впрысков"},
    {"капля", "капли", "капель"},
}};

const char* const kOldLengthUnits[] = {"дни", "недели", "месяцы"};

void appendPiece(std::string& sentence, const std::string& piece) {
  sentence += ", " + piece;
}

}  // namespace

std::string intervalToRead3(const Context& context, std::string_view value, bool nominative) {
  if (value.empty()) return "";
  const auto [count, unit] = pairOf(value);
  return lengthText(context, leadingInteger(count), unit, nominative);
}

std::string intervalToRead(const Context& context, std::string_view value, bool nominative) {
  const auto [count, unit] = pairOf(value);
  const std::int64_t j = leadingInteger(unit);
  const std::string_view name = j >= 0 && j < 3 ? kOldLengthUnits[j] : "";
  return lengthText(context, leadingInteger(count) + 1, name, nominative);
}

std::string dozaToRead3(const Context& context, std::string_view value) {
  const auto [amount, unit] = pairOf(value);
  return amount + " " + rusScon(amount, unit, context.translator());
}

std::string dozaToRead(const Context& context, std::string_view value) {
  const auto [amountIndex, unitIndex] = pairOf(value);
  const std::int64_t i = leadingInteger(amountIndex), j = leadingInteger(unitIndex);
  static const char* const kFractions[] = {"1/8", "1/4", "1/2"};
  const std::string amount = i >= 0 && i < 3 ? kFractions[i] : std::to_string(i - 2);
  const std::int64_t n = i >= 0 && i < 3 ? 2 : i - 2;
  if (j < 0 || j >= static_cast<std::int64_t>(kOldUnits.size())) return amount + " ";
  const WordForms& w = kOldUnits[static_cast<std::size_t>(j)];
  return amount + " " +
         rusForms(n, context.translate(w.one), context.translate(w.few), context.translate(w.many));
}

std::string periodToRead3(const Context& context, std::string_view value) {
  const auto [count, unit] = pairOf(value);
  const bool day = unit != "раз в сутки";
  return counted(context, leadingInteger(count),
                 day ? WordForms{"раз в день", "раза в день", "раз в день"}
                     : WordForms{"раз в сутки", "раза в сутки", "раз в сутки"});
}

std::string periodToRead(const Context& context, std::string_view value) {
  const auto [count, unit] = pairOf(value);
  return periodToRead3(context, std::to_string(leadingInteger(count) + 1) + "<td>" +
                                    (leadingInteger(unit) == 1 ? "раз в сутки" : "раз в день"));
}

int pillLengthToDays(const Context& context, std::string_view length, Date first) {
  const auto [count, unit] = pairOf(length);
  const std::int64_t n = leadingInteger(count);
  // A count of weeks from a damaged value can pass the range of an int: the days stop at its limit.
  const auto clamped = [](std::int64_t days) {
    return static_cast<int>(std::clamp<std::int64_t>(days, std::numeric_limits<int>::min(),
                                                     std::numeric_limits<int>::max()));
  };
  if (unit == "дни") return clamped(n);
  if (unit == "недели") return clamped(n * 7);
  if (unit == "месяцы") {
    const DateCodec& dates = context.dates();
    // The calendar wraps round far beyond its range: a course stops at ten thousand years.
    constexpr std::int64_t kLongestMonths = 12 * 10000;
    const auto months = static_cast<int>(std::clamp(n, -kLongestMonths, kLongestMonths));
    return dates.getDays(first, dates.addMonths(first, months));
  }
  return 0;
}

std::string pillsToRead(const Context& context, const Value& pill, const List& listData,
                        std::optional<Date> forDate) {
  const auto text = [&](std::string_view key) { return pill[key].text(); };
  std::string sentence = checkStringToRead(text("pillname"), listData) + ": ";
  sentence += dozaToRead3(context, text("pilldoza"));
  appendPiece(sentence, checkStringToRead(text("pillperiod"), listData));
  appendPiece(sentence, periodToRead3(context, text("pillinter")));
  appendPiece(sentence, checkStringToRead(text("pilleat"), listData));
  appendPiece(sentence, intervalToRead3(context, text("pilllength"), false));
  if (!forDate) return sentence;
  return sentence + courseDayText(context, text("pillsdate"), text("pilllength"), *forDate);
}

std::string courseDayText(const Context& context, std::string_view pillsdate,
                          std::string_view pilllength, Date day) {
  const DateCodec& dates = context.dates();
  const auto first = dates.dateFromStringFormat(pillsdate, "dd.MM.yyyy");
  if (!first) return "";
  return " (" + std::to_string(dates.getDays(*first, day) + 1) + " день из " +
         std::to_string(pillLengthToDays(context, pilllength, *first)) + ")";
}

}  // namespace lad
