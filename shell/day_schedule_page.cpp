#include "shell/day_schedule_page.h"

#include "core/text_parts.h"
#include "core/time_list.h"
#include "health/day_schedule.h"
#include "shell/meal_times_dialog.h"
#include "shell/pages.h"
#include "shell/profile_editor.h"
#include "shell/views/schedule.h"
#include "shell/week/page_title.h"
#include "store/dictionary.h"

namespace lad::shell {

namespace {

constexpr std::string_view kDayBack = "day:back";
constexpr std::string_view kDayForward = "day:forward";
constexpr std::string_view kMealTimes = "meals";

// A plain row with no entries names a block when its right margin holds a caption rather than
// a time; with nothing at all it is a gap.
std::string rowStyle(const health::ScheduleRow& row) {
  if (row.tp == health::kMealRow) return "meal";
  if (row.tp == health::kRelationRow) return "relation";
  if (!row.value.empty()) return "plain";
  if (row.right.empty()) return "blank";
  return clockMinutes(row.right) ? "plain" : "heading";
}

ScheduleRowView rowView(const health::ScheduleRow& row) {
  ScheduleRowView view{rowStyle(row), row.right, {}};
  for (std::string_view entry : splitOn(row.value, "<end>")) {
    const auto parts = splitOn(entry, "<tr>");
    if (parts.size() < 2) continue;
    view.entries.push_back({static_cast<int>(leadingInteger(parts[0])),
                            std::string(entry.substr(parts[0].size() + 4))});
  }
  return view;
}

}  // namespace

DaySchedulePage::DaySchedulePage(Application& app, ScreenHost& host, std::string gid,
                                 DiaryState& state, bool fromMenu)
    : app_(app), host_(host), gid_(std::move(gid)), state_(state) {
  state_.keepFor(gid_);
  if (fromMenu || !state_.scheduleDay) state_.scheduleDay = today();
}

Date DaySchedulePage::today() const {
  const Context& context = app_.context();
  return context.dates().noTime(context.clock().now());
}

Value DaySchedulePage::view() {
  const Context& context = app_.context();
  const Date day = *state_.scheduleDay;
  const List listData = loadConstList(app_.store(), 0, std::nullopt);
  ScheduleView schedule;
  schedule.day = {context.dates().dateToString(day, "dd MMMM yyyy"),
                  {std::string(kDayBack), "‹", std::nullopt},
                  {std::string(kDayForward), "›", std::nullopt}};
  schedule.meals = {std::string(kMealTimes), context.translate("Время приема пищи"), std::nullopt};
  for (const health::ScheduleRow& row : health::prepare(app_.store(), day, gid_, listData))
    schedule.rows.push_back(rowView(row));
  return PageView{pageTitle(context, kSchedulePage), List{schedule.toValue()}}.toValue();
}

EventResult DaySchedulePage::tap(std::string_view target) {
  const DateCodec& dates = app_.context().dates();
  if (target == kDayBack || target == kDayForward) {
    state_.scheduleDay = dates.addDays(*state_.scheduleDay, target == kDayBack ? -1 : 1);
    return {};
  }
  if (target == kMealTimes) {
    host_.push(std::make_shared<ProfileEditor>(app_, host_,
                                               std::make_unique<MealTimesDialog>(app_, gid_)));
    return {};
  }
  return EventResult::refused("the day schedule has no control " + std::string(target));
}

}  // namespace lad::shell
