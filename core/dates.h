// Dates as the diary reads, writes and counts them: text forms in date patterns, calendar parts,
// and calendar arithmetic, all in the Gregorian calendar of one time zone and one language.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "core/value.h"

namespace lad {

// The calendar parts of a date. Weekdays run from 1 for Sunday to 7 for Saturday.
struct DateParts {
  int year = 0;
  int month = 0;
  int day = 0;
  int weekday = 0;
  int weekOfYear = 0;
};

// Bound to a time zone (a name of the time zone database) and a language (1 Russian, 2 German,
// 3 French; any other number is Russian). Cheap to copy; every operation may be called from any
// thread. Bad input never throws: a text that does not fit gives nullopt.
class DateCodec {
 public:
  // Throws std::invalid_argument for a zone name the time zone database does not know.
  DateCodec(std::string zone, int langid);

  std::string dateToString(Date d, std::string_view pattern) const;
  // The same in the zone "UTC", with Russian month names.
  static std::string dateToStringUTC(Date d, std::string_view pattern);
  // The whole text must fit the pattern; a day or time that does not exist does not fit.
  std::optional<Date> dateFromStringFormat(std::string_view text, std::string_view pattern) const;
  // Reads a text of exactly 10, 16 or 19 characters as "yyyy-MM-dd", "yyyy-MM-dd HH:mm" or
  // "yyyy-MM-dd HH:mm:ss"; any other length gives nullopt.
  std::optional<Date> dateFromString(std::string_view text) const;

  // 00:00 of that day; out-of-range parts roll over (day 32 of January is February 1).
  Date encodeDate(int day, int month, int year) const;
  DateParts decodeDate(Date d) const;
  // 00:00 of the day of d.
  Date noTime(Date d) const;
  // Whole calendar days or months from `from` to `to`, both taken at 00:00 of their day;
  // positive when `to` is later.
  int getDays(Date from, Date to) const;
  int getMonths(Date from, Date to) const;
  // Moves by calendar units keeping the time of day; a month or year step that lands past the
  // end of a month stops on its last day.
  Date addDays(Date d, int days) const;
  Date addMonths(Date d, int months) const;
  Date addYears(Date d, int years) const;
  // The number of days of the month of d.
  int lastDateOfMonth(Date d) const;

 private:
  struct Impl;
  std::shared_ptr<const Impl> impl_;
};

}  // namespace lad
