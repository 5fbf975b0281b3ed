#include "health/pill_times.h"

#include <algorithm>
#include <array>
#include <span>

#include "core/context.h"
#include "core/json_text.h"
#include "core/text_parts.h"
#include "store/values/pill_reading.h"
#include "store/values/reading_forms.h"

namespace lad::health {

namespace {

constexpr int kMorning = 8 * 60;
constexpr int kWakingMinutes = 14 * 60;
constexpr int kDayMinutes = 24 * 60;
// The picker offers up to 24 intakes a day; a larger count comes from a damaged value.
constexpr std::int64_t kMostIntakes = 24;
constexpr const char* kAnyTime = "Независимо от еды";

struct Relation {
  const char* caption;
  int offset;
};
constexpr std::array<Relation, 9> kRelations{{
    {"За 1 час до еды", -60},
    {"За 30 минут до еды", -30},
    {"За 15 минут до еды", -15},
    {"Перед едой", -5},
    {"Во время еды", 5},
    {"После еды", 10},
    {"Через 15 минут после еды", 25},
    {"Через 30 минут после еды", 40},
    {"Через 1 час после еды", 70},
}};

std::string twoDigits(int n) {
  const std::string text = "0" + std::to_string(n);
  return text.substr(text.size() - 2);
}

// The local time h:m of the day; nullopt for an hour outside the day or a time that the day
// skips at the change to summer time.
std::optional<Date> timeOfDay(const DateCodec& dates, Date day, int h, int m) {
  if (h < 0 || h > 23) return std::nullopt;
  return dates.dateFromString(dates.dateToString(day, "yyyy-MM-dd") + " " + twoDigits(h) + ":" +
                              twoDigits(m));
}

// The whole hour of the meal: the minutes of a meal time are not looked at.
int mealHour(std::string_view meals, int meal) {
  const auto parts = splitOn(meals, "<table>");
  const auto at = static_cast<std::size_t>(meal);
  return at < parts.size() ? static_cast<int>(leadingInteger(parts[at])) : 0;
}

void spreadEvenly(const DateCodec& dates, Date day, int type, std::int64_t count,
                  const std::string& msg, std::vector<Intake>& out) {
  for (int pos = 1; pos <= count; ++pos)
    if (auto at = generateTime(dates, day, type, static_cast<int>(count), pos))
      out.push_back({*at, msg});
}

}  // namespace

std::optional<Date> generateTime(const DateCodec& dates, Date day, int type, int count, int pos) {
  int m = 0;
  // Single precision, truncated after multiplying, as the hours were always worked out.
  const auto step = [&](int span, int parts) {
    return static_cast<int>(static_cast<float>(span) / static_cast<float>(parts) *
                            static_cast<float>(pos - 1));
  };
  if (type == 2 && count >= 2) m = step(kDayMinutes, count);
  if (type == 1) {
    m = count >= 2 ? step(kWakingMinutes, count - 1) : 0;
    m = m - m % 15 + kMorning;
  }
  return timeOfDay(dates, day, m / 60, m % 60);
}

int mealOffset(const Context& context, std::string_view relation) {
  for (const Relation& r : kRelations)
    if (relation == context.translate(r.caption)) return r.offset;
  return 0;
}

int relationRank(const Context& context, std::string_view relation) {
  // The four before a meal stand first in the table, "Во время еды" fifth, the four after last.
  constexpr int kDuring = 4;
  for (int i = 0; i < static_cast<int>(kRelations.size()); ++i)
    if (i != kDuring && relation == context.translate(kRelations[i].caption))
      return i < kDuring ? i + 1 : i - kDuring;
  return 0;
}

std::span<const int> mealsFor(std::int64_t count) {
  static constexpr int kOne[] = {0}, kTwo[] = {0, 4}, kThree[] = {0, 2, 4}, kFour[] = {0, 2, 3, 4},
                       kFive[] = {0, 1, 2, 3, 4};
  static constexpr std::span<const int> kByCount[] = {kOne, kTwo, kThree, kFour, kFive};
  return kByCount[std::clamp<std::int64_t>(count, 1, 5) - 1];
}

std::optional<Date> generateTimeEat(const Context& context, Date day, int base,
                                    std::string_view relation) {
  int h = base, m = mealOffset(context, relation);
  if (m < 0) {
    h -= 1;
    m += 60;
  }
  if (m > 60) {
    h += 1;
    m -= 60;
  }
  return timeOfDay(context.dates(), day, h, m);
}

std::int64_t intakeCount(const Regimen& regimen) {
  return std::min(leadingInteger(pairOf(regimen.pillinter).first), kMostIntakes);
}

bool spreadsOverDay(const Context& context, std::int64_t count, std::string_view relation) {
  return count > 5 || relation == context.translate(kAnyTime);
}

std::string withRelation(const Context& context, const std::string& base,
                         std::string_view relation) {
  if (relation == context.translate(kAnyTime)) return base;
  return base + ", " + std::string(relation);
}

std::string intakeBaseText(const Context& context, const Regimen& regimen, const List& listData) {
  return checkStringToRead(regimen.pillname, listData) + ": " +
         dozaToRead3(context, regimen.pilldoza);
}

std::vector<Intake> regimenIntakes(const Context& context, Date day, const Regimen& regimen,
                                   const List& listData, std::string_view meals) {
  const DateCodec& dates = context.dates();
  std::vector<Intake> out;
  const std::string base = intakeBaseText(context, regimen, listData);
  if (!regimen.pilltime.empty()) {
    const std::string dayText = dates.dateToString(day, "yyyy-MM-dd") + " ";
    for (std::string_view time : splitOn(regimen.pilltime, "<td>"))
      if (auto at = dates.dateFromString(dayText + std::string(time))) out.push_back({*at, base});
    return out;
  }
  const std::int64_t count = intakeCount(regimen);
  const std::string relation = checkStringToRead(regimen.pilleat, listData);
  if (spreadsOverDay(context, count, relation)) {
    const std::string msg = withRelation(context, base, relation);
    const int type = pairOf(regimen.pillinter).second == "раз в сутки" ? 2 : 1;
    spreadEvenly(dates, day, type, count, msg, out);
    return out;
  }
  const std::string msg = base + " (" + relation + ")";
  for (int meal : mealsFor(count))
    if (auto at = generateTimeEat(context, day, mealHour(meals, meal), relation))
      out.push_back({*at, msg});
  return out;
}

std::vector<Intake> pillsToTimeArray(const Context& context, Date day, std::string_view value,
                                     const List& listData, std::string_view meals) {
  std::vector<Intake> out;
  if (!jsonIs(value)) return out;
  const Value tree = jsonToArray(value);
  if (!tree.asList()) return out;
  for (const Value& object : *tree.asList()) {
    const auto intakes = regimenIntakes(context, day, Regimen::fromValue(object), listData, meals);
    out.insert(out.end(), intakes.begin(), intakes.end());
  }
  return out;
}

std::optional<std::string> getCurrentPillTime(const Context& context, Regimen regimen,
                                              const List& listData, std::string_view meals,
                                              Date today) {
  if (regimen.pillinter.empty() || regimen.pilleat.empty()) return std::nullopt;
  regimen.pilltime.clear();
  std::string times;
  for (const Intake& intake : regimenIntakes(context, today, regimen, listData, meals))
    times += (times.empty() ? "" : "<td>") + context.dates().dateToString(intake.dat, "HH:mm");
  return times;
}

}  // namespace lad::health
