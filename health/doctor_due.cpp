#include "health/doctor_due.h"

#include <algorithm>

#include "content/resource.h"
#include "core/context.h"
#include "core/edition.h"
#include "core/ids.h"
#include "core/text_fill.h"
#include "core/word_forms.h"
#include "health/doctor_plan.h"
#include "store/selections.h"
#include "store/setup_data.h"
#include "store/store.h"

namespace lad::health {

namespace {

// The check-list that holds the ticks of the plan's items.
constexpr int kPlanChecks = 1;
// Main menu groups 4 and 5 keep the dismissed weeks in the check-list of the group + 1000.
constexpr int kDismissedWeeks = 1000;
constexpr int kPlanGroup = 7;

// The running week of the pregnancy on the day, 1 at the least.
int weekOnDay(Store& store, Date day, const std::string& gid) {
  const auto dat1 = loadSetupData(store, gid)["dat1"].asDate();
  const int days = dat1 ? std::max(store.context().dates().getDays(*dat1, day) + 1, 1) : 1;
  return (days + 6) / 7;
}

bool isDue(const PlanItem& item, int week, const std::vector<std::string>& ticked) {
  return item.start >= 1 && item.start <= week &&
         std::find(ticked.begin(), ticked.end(), item.tick) == ticked.end();
}

bool weekDismissed(Store& store, int group, int week, const std::string& gid) {
  const auto ticks = loadCheckData(store, group + kDismissedWeeks, gid);
  return std::any_of(ticks.begin(), ticks.end(), [&](const std::string& tick) {
    return tick == newID2(2, week) || tick == std::to_string(week);
  });
}

// The texts of the notice file for the group and week.
void addNotices(const Context& context, std::vector<std::string>& out, int group, int week) {
  for (const WeekNotice& notice : *weekNoticeRows(content::contentFolder(context)))
    if (notice.group == group && notice.week == week) out.push_back(notice.text);
}

std::string planNotice(const Context& context, std::size_t count) {
  const auto n = static_cast<std::int64_t>(count);
  const auto form = [&](const char* one, const char* few, const char* many) {
    return rusForms(n, context.translate(one), context.translate(few), context.translate(many));
  };
  return fillIn(context.translate("В разделе К доктору у Вас не %@ %d %@"),
                {form("отмечен", "отмечено", "отмечено"), std::to_string(n),
                 form("пункт", "пункта", "пунктов")});
}

}  // namespace

void loadIndayFromFile(Store& store, std::string_view file, std::vector<std::string>& data,
                       int seltypeid, const std::string& gid, Date todate) {
  const auto items = planItems(content::contentFolder(store.context()), file);
  if (items->empty()) return;
  const int week = weekOnDay(store, todate, gid);
  const auto ticked = loadCheckData(store, seltypeid, gid);
  for (const PlanItem& item : *items)
    if (isDue(item, week, ticked)) data.push_back(item.dayText);
}

std::vector<std::string> dueDoctorItems(Store& store, Date day, const std::string& gid) {
  std::vector<std::string> due;
  loadIndayFromFile(store, "doctor-u", due, kPlanChecks, gid, day);
  loadIndayFromFile(store, "doctorhelp-u", due, kPlanChecks, gid, day);
  return due;
}

std::vector<std::string> getTodayWarning(Store& store, int group, int time,
                                         const std::string& gid) {
  const Context& context = store.context();
  std::vector<std::string> out;
  if (!isPregnancyEdition(context.values().appid)) return out;
  if (group == 4 || group == 5) {
    if (!weekDismissed(store, group, time, gid)) addNotices(context, out, group, time);
  } else if (group == kPlanGroup) {
    const auto due = dueDoctorItems(store, context.dates().noTime(context.clock().now()), gid);
    if (!due.empty()) out.push_back(planNotice(context, due.size()));
  }
  return out;
}

}  // namespace lad::health
