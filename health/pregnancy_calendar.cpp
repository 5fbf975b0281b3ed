#include "health/pregnancy_calendar.h"

#include <algorithm>
#include <cstdio>
#include <optional>

#include "core/context.h"
#include "health/birth_result.h"
#include "health/calendar_text.h"
#include "health/child_age.h"

namespace lad::health {

namespace {

constexpr int kTermDays = 280;
constexpr int kTermWeeks = 40;
constexpr int kLastShownDay = 294;
constexpr int kDaysPastTerm = 14;
constexpr int kLastEmbryoWeek = 8;
constexpr int kLastWeekOfFirstTrimester = 13;
constexpr int kLastWeekOfSecondTrimester = 26;
constexpr int kLastShownWeek = 42;

std::optional<Date> setupDate(const Map& setup, std::string_view key) {
  const Value* v = setup.find(key);
  return v ? v->asDate() : std::nullopt;
}

Value member(const Map& setup, std::string_view key) {
  const Value* v = setup.find(key);
  return v ? *v : Value();
}

bool isCompleted(const Map& setup) {
  return setupDate(setup, "birthdate2").has_value();
}

// Days from the date under `key` to the end day; nullopt when that date is unknown.
std::optional<int> daysToEnd(const Context& context, const Map& setup, std::string_view key) {
  const auto from = setupDate(setup, key);
  if (!from) return std::nullopt;
  return context.dates().getDays(*from, pregnancyEndDay(context, setup));
}

// The count of days a text is made of, split into whole weeks w and the days r beyond them
// (both truncated towards zero, so negative together with n).
struct Span {
  Date from;
  int n;
  int w;
  int r;
};

Span spanOf(Date from, int n) {
  return {from, n, n / 7, n % 7};
}

std::string_view countKey(AgeMode mode) {
  switch (mode) {
    case AgeMode::TimeLeft:
      return "birthdate";
    case AgeMode::ConceptionAge:
    case AgeMode::ConceptionMonths:
    case AgeMode::EmbryoWeek:
    case AgeMode::PeriodName:
      return "dat2";
    default:
      return "dat1";
  }
}

bool countsTheRunningDay(AgeMode mode) {
  return mode == AgeMode::RunningWeek || mode == AgeMode::RunningDay;
}

std::optional<Span> countOf(const Context& context, AgeMode mode, const Map& setup) {
  const auto from = setupDate(setup, countKey(mode));
  if (!from) return std::nullopt;
  const DateCodec& dates = context.dates();
  if (mode == AgeMode::TimeLeft) return spanOf(*from, dates.getDays(context.clock().now(), *from));
  const int days = dates.getDays(*from, pregnancyEndDay(context, setup));
  return spanOf(*from, countsTheRunningDay(mode) ? days + 1 : days);
}

std::string unknownDateText(AgeMode mode) {
  switch (mode) {
    case AgeMode::ObstetricAge:
    case AgeMode::TimeLeft:
    case AgeMode::ConceptionAge:
      return "-";
    case AgeMode::EmbryoWeek:
      return "1";
    default:
      return {};
  }
}

std::string textBelowOne(const Context& context, AgeMode mode, int n) {
  switch (mode) {
    case AgeMode::ObstetricAge:
    case AgeMode::ConceptionAge:
      return n == 0 ? context.translate("еще ничего не прошло") : "-";
    case AgeMode::TimeLeft:
      return context.translate("уже скоро");
    case AgeMode::PeriodName:
      return context.translate(n == 0 ? "Зачатие" : "Зачатия еще не произошло");
    default:
      return {};
  }
}

// "2 недели и 3 дня", "ровно 2 недели" or "3 дня".
std::string spanText(const Context& context, const Span& s) {
  const std::string days = wordFor(context, s.r, "день", "дня", "дней");
  if (s.n < 7) return fillIn("%d %@", s.r, days);
  const std::string weeks = wordFor(context, s.w, "неделя", "недели", "недель");
  if (s.r == 0) return fillIn(context.translate("ровно %d %@"), s.w, weeks);
  return fillIn(context.translate("%d %@ и %d %@"),
                {std::to_string(s.w), weeks, std::to_string(s.r), days});
}

// The running week and its running day: day 7 closes a week instead of opening the next.
std::string runningWeekText(const Context& context, AgeMode mode, const Span& s) {
  const int week = s.r > 0 ? s.w + 1 : s.w;
  const int day = s.r > 0 ? s.r : 7;
  if (mode == AgeMode::RunningWeek) return fillIn("%d %@", week, context.translate("неделя"));
  return fillIn(context.translate("идет %d день %d недели"),
                {std::to_string(day), std::to_string(week)});
}

std::string percentText(int n) {
  const float days = static_cast<float>(std::min(n, kTermDays));
  char text[16];
  std::snprintf(text, sizeof text, "%1.f%%", static_cast<double>(days) / kTermDays * 100);
  return text;
}

// The text of a count of 1 or more days.
std::string shapedText(const Context& context, AgeMode mode, const Map& setup, const Span& s) {
  switch (mode) {
    case AgeMode::RunningWeek:
    case AgeMode::RunningDay:
      return runningWeekText(context, mode, s);
    case AgeMode::TimeLeft:
      if (s.w > kTermWeeks || (s.w == kTermWeeks && s.r > 0)) return "-";
      return spanText(context, s);
    case AgeMode::ObstetricMonths:
    case AgeMode::ConceptionMonths:
      return monthAge(context, s.from, pregnancyEndDay(context, setup), false, false);
    case AgeMode::Percent:
      return percentText(s.n);
    case AgeMode::EmbryoWeek:
      return std::to_string(s.w + 1);
    case AgeMode::PeriodName:
      return context.translate(s.w + 1 > kLastEmbryoWeek ? "Фетальный (плодный) период"
                                                         : "Эмбриональный (зародышевый) период");
    default:
      return spanText(context, s);
  }
}

// "Прошла 1 неделя", "Прошло 2 недели", "Прошел 1 день", "Прошло 3 дня".
std::string withVerb(const Context& context, const Span& s, const std::string& text) {
  if (s.w >= 1) return fillIn("%@ %@", {wordFor(context, s.w, "Прошла", "Прошло", "Прошло"), text});
  if (s.r >= 1) return fillIn("%@ %@", {wordFor(context, s.r, "Прошел", "Прошло", "Прошло"), text});
  return text;
}

// The last word of each mode on its text, whatever the count.
std::string closedText(const Context& context, AgeMode mode, const Map& setup, const Span& s,
                       std::string text) {
  switch (mode) {
    case AgeMode::TimeLeft:
      return isCompleted(setup) || s.n < -kDaysPastTerm ? "-" : text;
    case AgeMode::ObstetricAge:
    case AgeMode::ConceptionAge:
    case AgeMode::RunningWeek:
    case AgeMode::ObstetricMonths:
    case AgeMode::ConceptionMonths:
    case AgeMode::RunningDay:
      return s.n > kLastShownDay ? "-" : text;
    case AgeMode::EmbryoWeek:
      return s.w < 1 ? "1" : text;
    case AgeMode::PassedTime:
      return withVerb(context, s, text);
    default:
      return text;
  }
}

}  // namespace

Date pregnancyEndDay(const Context& context, const Map& setup) {
  const auto birth = setupDate(setup, "birthdate2");
  return context.dates().noTime(birth ? *birth : context.clock().now());
}

int getCurDay(const Context& context, const Map& setup) {
  const auto n = daysToEnd(context, setup, "dat1");
  return !n || *n < -1 ? 1 : *n + 1;
}

int getCurWeek(const Context& context, const Map& setup) {
  const auto n = daysToEnd(context, setup, "dat1");
  const int day = n ? std::max(*n + 1, 1) : 1;
  return (day + 6) / 7;
}

int getCurPeriod(const Context& context, const Map& setup) {
  return getCurWeek(context, setup);
}

int trimester(int week) {
  if (week <= kLastWeekOfFirstTrimester) return 1;
  return week <= kLastWeekOfSecondTrimester ? 2 : 3;
}

std::string trimesterName(const Context& context, int week) {
  switch (trimester(week)) {
    case 1:
      return context.translate("Первый триместр");
    case 2:
      return context.translate("Второй триместр");
    default:
      return context.translate("Третий триместр");
  }
}

bool weekIsShown(int week) {
  return week <= kLastShownWeek;
}

std::string weekStartEnd(const Context& context, int first, int last, const Map& setup) {
  const auto dat1 = setupDate(setup, "dat1");
  if (!dat1) return {};
  const DateCodec& dates = context.dates();
  return fillIn("%@-%@", {dates.dateToString(dates.addDays(*dat1, 7 * first - 7), "dd.MM"),
                          dates.dateToString(dates.addDays(*dat1, 7 * last - 1), "dd.MM")});
}

std::string ageString(const Context& context, AgeMode mode, const Map& setup) {
  if (mode == AgeMode::ShortBirthResult)
    return shortBirthResult(context, member(setup, "birthresult"));
  if (mode == AgeMode::LongBirthResult)
    return longBirthResult(context, member(setup, "birthresult"), member(setup, "sex").intValue());
  const auto s = countOf(context, mode, setup);
  if (!s) return unknownDateText(mode);
  std::string text =
      s->n < 1 ? textBelowOne(context, mode, s->n) : shapedText(context, mode, setup, *s);
  return closedText(context, mode, setup, *s, std::move(text));
}

std::string pregnancyStateLine(const Context& context, const Map& setup) {
  Map running = setup;
  running.erase("birthdate2");
  const std::string passed = ageString(context, AgeMode::PassedTime, running);
  const std::string day = ageString(context, AgeMode::RunningDay, running);
  if (passed.empty() && day.empty()) return context.translate("Срок указан неправильно");
  if (passed.empty()) return capitalizeFirst(day);
  return fillIn("%@,\n%@", {passed, day});
}

}  // namespace lad::health
