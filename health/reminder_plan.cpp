#include "health/reminder_plan.h"

#include <algorithm>

#include "core/context.h"
#include "core/db_cells.h"
#include "core/json_text.h"
#include "health/pill_times.h"
#include "store/dictionary.h"
#include "store/profiles.h"
#include "store/store.h"
#include "store/tables.h"

namespace lad::health {

namespace {

// The platform keeps only so many notifications, and a long course writes a value on each of
// its days: only this many days with values are planned.
constexpr int kDaysPlanned = 20;

struct DayValue {
  Date day;
  std::string value;
  std::string gid;
};

std::vector<DayValue> upcomingValues(Store& store, const char* type, Date now) {
  const Context& context = store.context();
  const EditionTables& t = tablesFor(context.values().appid);
  std::vector<DayValue> rows;
  StoreBracket bracket = store.connectToBase();
  if (!bracket.db()) return rows;
  SqliteStatement st =
      bracket.db()->prepare(std::string("select sdat, value, ") + t.guid + " from " + t.data +
                            " where date(sdat)>=date(?) and type=? order by date(sdat) limit " +
                            std::to_string(kDaysPlanned));
  dateToBase(st, 1, now, false, context.dates());
  st.bindText(2, type);
  while (st.step())
    if (auto day = dateFromBase(st, 0, false, context.dates()))
      rows.push_back({*day, st.columnText(1).value_or(""), st.columnText(2).value_or("")});
  return rows;
}

// Says whose day it is in the child's diary, where several children share the plan.
class Bodies {
 public:
  explicit Bodies(Store& store)
      : child_(isChildEdition(store.context().values().appid)),
        names_(child_ ? childNames(store) : Map()) {}

  std::string operator()(const std::string& gid, const std::string& text) const {
    const std::string* name = names_[gid].asText();
    return child_ && name ? *name + ": " + text : text;
  }

 private:
  bool child_;
  Map names_;
};

}  // namespace

std::string defaultReminderText(int appid) {
  if (isChildEdition(appid)) return "Напоминание программы Крохомир";
  if (isCycleEdition(appid)) return "Напоминание программы Луновея";
  if (is3dEdition(appid)) return "Напоминание программы Ладанея 3D";
  return "Напоминание программы Ладанея";
}

std::vector<PlannedReminder> updateNoteAlarms(Store& store, Date now) {
  const Context& context = store.context();
  const DateCodec& dates = context.dates();
  const std::string fallback = context.translate(defaultReminderText(context.values().appid));
  const Bodies bodies(store);
  std::vector<PlannedReminder> plan;
  for (const DayValue& row : upcomingValues(store, "alarm", now)) {
    if (!jsonIs(row.value)) continue;
    const Value tree = jsonToArray(row.value);
    if (!tree.asList()) continue;
    const std::string dayText = dates.dateToString(row.day, "dd.MM.yyyy") + " ";
    for (const Value& reminder : *tree.asList()) {
      const auto at =
          dates.dateFromStringFormat(dayText + reminder["time"].text(), "dd.MM.yyyy HH:mm");
      if (!at || *at <= now) continue;
      const std::string text = reminder["temp"].text();
      plan.push_back({*at, bodies(row.gid, text.empty() ? fallback : text), row.day, row.gid});
    }
  }
  return plan;
}

std::vector<PlannedReminder> updatePillsAlarms(Store& store, const List& listData, Date now) {
  const Context& context = store.context();
  const std::string meals = getObed(store);
  const Bodies bodies(store);
  std::vector<PlannedReminder> plan;
  for (const DayValue& row : upcomingValues(store, "pills", now))
    for (const Intake& intake : pillsToTimeArray(context, row.day, row.value, listData, meals))
      if (intake.dat > now)
        plan.push_back({intake.dat, bodies(row.gid, intake.msg), row.day, row.gid});
  return plan;
}

std::vector<PlannedReminder> planReminders(Store& store, Date now) {
  std::vector<PlannedReminder> plan = updateNoteAlarms(store, now);
  if (store.context().values().pillsAlarm) {
    const auto intakes = updatePillsAlarms(store, loadConstList(store, 0, std::nullopt), now);
    plan.insert(plan.end(), intakes.begin(), intakes.end());
  }
  std::stable_sort(plan.begin(), plan.end(),
                   [](const PlannedReminder& a, const PlannedReminder& b) { return a.at < b.at; });
  return plan;
}

}  // namespace lad::health
