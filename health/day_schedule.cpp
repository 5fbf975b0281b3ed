#include "health/day_schedule.h"

#include <algorithm>
#include <cstdio>

#include "core/context.h"
#include "core/edition.h"
#include "core/json_text.h"
#include "core/text_parts.h"
#include "core/time_list.h"
#include "health/diet_schedule.h"
#include "health/doctor_due.h"
#include "health/pill_schedule.h"
#include "health/pill_times.h"
#include "store/profiles.h"
#include "store/records.h"
#include "store/store.h"

namespace lad::health {

namespace {

constexpr int kDayMinutes = 24 * 60;

std::string timeKey(int minutes) {
  char text[8];
  std::snprintf(text, sizeof text, "%02d:%02d", minutes / 60 % 100, minutes % 60);
  return text;
}

void addReminders(const Context& context, Schedule& rows, const std::string& alarms) {
  const Value tree = jsonIs(alarms) ? jsonToArray(alarms) : Value();
  if (!tree.asList()) {
    insInData(rows, kPlainRow, "", "0<tr>" + context.translate("В этом дне напоминаний нет"),
              "00:00");
    return;
  }
  for (const Value& item : *tree.asList()) {
    const std::string time = item["time"].text();
    insInData(rows, kPlainRow, time, "5<tr>" + item["temp"].text(), time);
  }
}

void addDoctorBlock(Store& store, Schedule& rows, Date day, const std::string& gid) {
  const Context& context = store.context();
  const std::vector<std::string> due = dueDoctorItems(store, day, gid);
  if (due.empty()) {
    insInData(rows, kPlainRow, "",
              "0<tr>" + context.translate("Необходимых посещений медицинских учреждений нет"),
              "23:59");
    return;
  }
  insInData(rows, kPlainRow, context.translate("Необходимо посещение медицинского учреждения"), "",
            "25:01");
  for (const std::string& item : due) insInData(rows, kPlainRow, "", "1<tr>" + item, "25:02");
}

}  // namespace

void insInData(Schedule& rows, int tp, const std::string& right, const std::string& value,
               const std::string& pos) {
  const auto same = std::find_if(rows.begin(), rows.end(), [&](const ScheduleRow& r) {
    return r.tp == tp && r.right == right && r.pos == pos;
  });
  if (same == rows.end()) {
    rows.push_back({tp, right, pos, value});
    return;
  }
  if (!same->value.empty()) same->value += "<end>";
  same->value += value;
}

int compareRight(const Context& context, std::string_view right1, std::string_view right2) {
  return relationRank(context, right1) - relationRank(context, right2);
}

void sortSchedule(const Context& context, Schedule& rows) {
  std::stable_sort(rows.begin(), rows.end(), [&](const ScheduleRow& a, const ScheduleRow& b) {
    const auto minutes = timeCompare(a.pos, b.pos);
    return minutes != 0 ? minutes < 0 : compareRight(context, a.right, b.right) < 0;
  });
}

std::optional<std::string> gt(std::string_view meals, int priem, int min) {
  const auto parts = splitOn(meals, "<table>");
  if (priem < 1 || priem > static_cast<int>(parts.size())) return std::nullopt;
  const auto meal = clockMinutes(parts[static_cast<std::size_t>(priem - 1)]);
  if (!meal) return std::nullopt;
  return timeKey(((*meal + min) % kDayMinutes + kDayMinutes) % kDayMinutes);
}

std::string generateTime(int kind, int count, int pos) {
  // Single precision, truncated after multiplying, then cut down to a quarter hour.
  const auto step = [&](int span, int parts) {
    const int m = static_cast<int>(static_cast<float>(span) / static_cast<float>(parts) *
                                   static_cast<float>(pos - 1));
    return m - m % 15;
  };
  if (kind == 2) return timeKey(count >= 2 ? step(kDayMinutes, count + 1) : 0);
  if (kind == 1) return timeKey((count >= 2 ? step(14 * 60, count - 1) : 0) + 8 * 60);
  return timeKey(0);
}

Schedule prepare(Store& store, Date day, const std::string& gid, const List& listData) {
  const Context& context = store.context();
  const int appid = context.values().appid;
  const std::string meals = getObed(store);
  Schedule rows;
  DietInForce diet;
  std::string alarms, pills;
  {
    StoreBracket bracket = store.connectToBase();
    diet = dietInForce(store, bracket, day, gid);
    alarms = getDateValue(store, bracket, day, "alarm", gid);
    pills = getDateValue(store, bracket, day, "pills", gid);
  }
  addReminders(context, rows, alarms);
  addMedicines(context, rows, day, pills, listData, meals);
  if (isCycleEdition(appid)) addDiet(context, rows, diet, day, meals);
  if (isPregnancyEdition(appid)) addDoctorBlock(store, rows, day, gid);
  sortSchedule(context, rows);
  return rows;
}

}  // namespace lad::health
