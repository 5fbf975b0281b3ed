#include "core/date_pattern.h"

#include <chrono>

namespace lad {

namespace {

struct Fields {
  int year = 1970, month = 1, day = 1, hour = 0, minute = 0, second = 0;
};

// One piece of a pattern: a run of one field letter, or literal text.
struct Token {
  char letter = 0;  // 0 for literal text
  int width = 0;
  std::string_view literal;
};

bool isLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

// Splits a pattern into tokens and hands each to `take`, which may stop the walk by returning
// false. Text in single quotes is literal and "''" is a quote. False when the walk was stopped
// or a quote is left open.
template <class Take>
bool forEachToken(std::string_view pattern, Take take) {
  bool quoted = false;
  std::size_t i = 0;
  while (i < pattern.size()) {
    const char c = pattern[i];
    Token t;
    std::size_t end = i + 1;
    if (c == '\'') {
      if (end < pattern.size() && pattern[end] == '\'') {
        t.literal = pattern.substr(i, 1);
        end = i + 2;
      } else {
        quoted = !quoted;
        i = end;
        continue;
      }
    } else if (quoted) {
      end = pattern.find('\'', i);
      if (end == std::string_view::npos) end = pattern.size();
      t.literal = pattern.substr(i, end - i);
    } else if (isLetter(c)) {
      while (end < pattern.size() && pattern[end] == c) ++end;
      t.letter = c;
      t.width = static_cast<int>(end - i);
    } else {
      while (end < pattern.size() && !isLetter(pattern[end]) && pattern[end] != '\'') ++end;
      t.literal = pattern.substr(i, end - i);
    }
    if (!take(t)) return false;
    i = end;
  }
  return !quoted;
}

// The field a numeric token stands for, or nullptr for one that is not read or written by hand.
int* numericField(const Token& t, Fields& f) {
  if (t.width != 2) return t.letter == 'y' && t.width == 4 ? &f.year : nullptr;
  switch (t.letter) {
    case 'M':
      return &f.month;
    case 'd':
      return &f.day;
    case 'H':
      return &f.hour;
    case 'm':
      return &f.minute;
    case 's':
      return &f.second;
    default:
      return nullptr;
  }
}

Fields fieldsOf(LocalMillis local) {
  using namespace std::chrono;
  const milliseconds t(local);
  const auto day = floor<days>(t);
  const year_month_day ymd{sys_days(day)};
  const hh_mm_ss<milliseconds> time(t - day);
  return {int(ymd.year()),           int(unsigned(ymd.month())),  int(unsigned(ymd.day())),
          int(time.hours().count()), int(time.minutes().count()), int(time.seconds().count())};
}

std::optional<LocalMillis> millisOf(const Fields& f) {
  using namespace std::chrono;
  const year_month_day ymd{year(f.year), month(unsigned(f.month)), day(unsigned(f.day))};
  if (f.year < 1 || !ymd.ok() || f.hour > 23 || f.minute > 59 || f.second > 59) return std::nullopt;
  const auto t = sys_days(ymd) + hours(f.hour) + minutes(f.minute) + seconds(f.second);
  return duration_cast<milliseconds>(t.time_since_epoch()).count();
}

void appendNumber(std::string& out, int n, int width) {
  char digits[4];
  for (int i = width - 1; i >= 0; --i, n /= 10) digits[i] = static_cast<char>('0' + n % 10);
  out.append(digits, static_cast<std::size_t>(width));
}

std::optional<int> readNumber(std::string_view text, std::size_t at, int width) {
  if (text.size() < at + static_cast<std::size_t>(width)) return std::nullopt;
  int n = 0;
  for (std::size_t i = at; i < at + static_cast<std::size_t>(width); ++i) {
    if (text[i] < '0' || text[i] > '9') return std::nullopt;
    n = n * 10 + (text[i] - '0');
  }
  return n;
}

}  // namespace

std::optional<std::string> formatDatePattern(LocalMillis local, std::string_view pattern,
                                             const MonthNames& months) {
  // Years 1 to 9999 only, told before the calendar arithmetic, which overflows far outside them.
  constexpr LocalMillis kFirst = -62'135'596'800'000;  // 0001-01-01 00:00:00
  constexpr LocalMillis kEnd = 253'402'300'800'000;    // 10000-01-01 00:00:00
  if (local < kFirst || local >= kEnd) return std::nullopt;
  Fields f = fieldsOf(local);
  std::string out;
  const bool written = forEachToken(pattern, [&](const Token& t) {
    if (!t.letter) {
      out += t.literal;
    } else if (t.letter == 'M' && t.width == 4) {
      out += months[static_cast<std::size_t>(f.month - 1)];
    } else if (t.letter == 'y' && t.width == 2) {
      appendNumber(out, f.year % 100, 2);
    } else if (const int* n = numericField(t, f)) {
      appendNumber(out, *n, t.width);
    } else {
      return false;
    }
    return true;
  });
  if (!written) return std::nullopt;
  return out;
}

std::optional<LocalMillis> parseDatePattern(std::string_view text, std::string_view pattern) {
  Fields f;
  std::size_t at = 0;
  bool anyField = false;
  const bool read = forEachToken(pattern, [&](const Token& t) {
    if (!t.letter) {
      if (text.substr(at, t.literal.size()) != t.literal) return false;
      at += t.literal.size();
      return true;
    }
    int* field = numericField(t, f);
    const auto n = field ? readNumber(text, at, t.width) : std::nullopt;
    if (!n) return false;
    *field = *n;
    at += static_cast<std::size_t>(t.width);
    anyField = true;
    return true;
  });
  if (!read || !anyField || at != text.size()) return std::nullopt;
  return millisOf(f);
}

}  // namespace lad
