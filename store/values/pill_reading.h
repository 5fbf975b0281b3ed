// The sentences of a medicine course: its length, dose and frequency in the current "<td>"
// forms and in the old index forms, the length in days, and the whole course as one line.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/value.h"

namespace lad {

class Context;

// "3 недели": a count and "дни", "недели" or "месяцы" joined by "<td>". With nominative the
// week reads "неделя", else "неделю". "" for an empty value.
std::string intervalToRead3(const Context& context, std::string_view value, bool nominative);
// The old form: two indexes, the count less one and 0 days, 1 weeks, 2 months.
std::string intervalToRead(const Context& context, std::string_view value, bool nominative);

// "1/2 миллилитра": an amount and a short unit joined by "<td>".
std::string dozaToRead3(const Context& context, std::string_view value);
// The old form: an amount index (0 "1/8", 1 "1/4", 2 "1/2", then the number less 2) and a unit.
std::string dozaToRead(const Context& context, std::string_view value);

// "2 раза в день": a count and "раз в день" or "раз в сутки" joined by "<td>".
std::string periodToRead3(const Context& context, std::string_view value);
// The old form: the count less one, and 0 for the day, 1 for the twenty-four hours.
std::string periodToRead(const Context& context, std::string_view value);

// The days a course of that length lasts from its first day; 0 for an unknown unit.
int pillLengthToDays(const Context& context, std::string_view length, Date first);

// " (3 день из 7)": the day's number in a course from its first day "dd.MM.yyyy" and the
// course's length in days; "" when the first day is not a date.
std::string courseDayText(const Context& context, std::string_view pillsdate,
                          std::string_view pilllength, Date day);

// The sentence of one course: name, dose, periodicity, frequency, relation to food and length,
// with " (%d день из %d)" when a day is given.
std::string pillsToRead(const Context& context, const Value& pill, const List& listData,
                        std::optional<Date> forDate);

}  // namespace lad
