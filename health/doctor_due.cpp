#include "health/doctor_due.h"

#include <algorithm>

#include "content/display.h"
#include "content/resource.h"
#include "core/context.h"
#include "core/edition.h"
#include "core/ids.h"
#include "core/json_text.h"
#include "core/text_fill.h"
#include "core/text_parts.h"
#include "core/word_forms.h"
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
// A `checkid` of up to four characters is an old number.
constexpr std::size_t kLongestOldCheckid = 4;

// The running week of the pregnancy on the day, 1 at the least.
int weekOnDay(Store& store, Date day, const std::string& gid) {
  const auto dat1 = loadSetupData(store, gid)["dat1"].asDate();
  const int days = dat1 ? std::max(store.context().dates().getDays(*dat1, day) + 1, 1) : 1;
  return (days + 6) / 7;
}

bool isDue(const Value& item, int week, const std::vector<std::string>& ticked) {
  const std::int64_t start = item["planestart"].intValue();
  if (start < 1 || start > week || !item.asMap() || !item.asMap()->contains("checkid") ||
      item["indaycomment"].text().empty())
    return false;
  const std::string guid = content::tickGuid(item["checkid"].text(), kLongestOldCheckid);
  return std::find(ticked.begin(), ticked.end(), guid) == ticked.end();
}

bool weekDismissed(Store& store, int group, int week, const std::string& gid) {
  const auto ticks = loadCheckData(store, group + kDismissedWeeks, gid);
  return std::any_of(ticks.begin(), ticks.end(), [&](const std::string& tick) {
    return tick == newID2(2, week) || tick == std::to_string(week);
  });
}

// The texts of the notice file for the group and week: rows "group<td>week<td>text" by "<tr>".
void addNotices(const Context& context, std::vector<std::string>& out, int group, int week) {
  const std::string text = content::fileToString(content::contentFolder(context), "warning");
  for (std::string_view row : splitOn(text, "<tr>")) {
    const auto fields = splitOn(row, "<td>");
    if (fields.size() < 3) continue;
    if (leadingInteger(content::trimText(fields[0])) == group &&
        leadingInteger(content::trimText(fields[1])) == week)
      out.emplace_back(content::trimText(fields[2]));
  }
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
  const content::Resource plan =
      content::loadResource(content::contentFolder(store.context()), file);
  if (!plan.json) return;
  const Value tree = jsonToArray(plan.text);
  if (!tree.asList()) return;
  const int week = weekOnDay(store, todate, gid);
  const auto ticked = loadCheckData(store, seltypeid, gid);
  for (const Value& group : *tree.asList()) {
    const List* items = group["Content"].asList();
    if (!items) continue;
    for (const Value& item : *items)
      if (isDue(item, week, ticked)) data.push_back(item["indaycomment"].text());
  }
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
