#include "shell/cycle/cycle_today.h"

#include "core/context.h"
#include "core/date_names.h"
#include "core/menu_table.h"
#include "core/text_fill.h"
#include "health/cycle_days.h"
#include "shell/cycle/cycle_calendar.h"
#include "shell/cycle/cycle_marks.h"
#include "shell/diary/day_editor.h"
#include "shell/pages.h"
#include "shell/views/pages.h"
#include "shell/views/rows.h"
#include "store/values/reading_forms.h"

namespace lad::shell {

namespace {

constexpr std::string_view kOpenDay = "today:day";
constexpr std::string_view kOpenCalendar = "today:calendar";
constexpr int kHint = 2;  // a dimmed text

constexpr const char* kNoCycle =
    "Первый день месячных еще не отмечен. Откройте сегодняшний или другой день и выберите «Тип», "
    "чтобы программа начала считать дни цикла.";
constexpr const char* kOwnMarks =
    "Программа считает дни только по вашим отметкам и ничего не предсказывает. Если что-то в "
    "цикле вас беспокоит, обратитесь к своему врачу.";

std::string pageTitle(const Context& context) {
  const Map* row = menuRow(context.values().tabMenu, kTodayPage);
  return row ? (*row)["name"].text() : context.translate("Сегодня");
}

// "25 ноября 2026, среда".
std::string dateLine(const Context& context, Date now) {
  const DateParts parts = context.dates().decodeDate(now);
  std::string date = context.dates().dateToString(now, "dd MMMM yyyy");
  if (date.starts_with('0')) date.erase(0, 1);
  return date + ", " + weekdayfull(parts.weekday, context.translator());
}

}  // namespace

CycleToday::CycleToday(Application& app, ScreenHost& host, std::string gid, DiaryState& state)
    : app_(app),
      host_(host),
      gid_(std::move(gid)),
      state_(state),
      today_(health::cycleToday(app_.store(), app_.context().clock().now())) {}

Value CycleToday::view() {
  const Context& context = app_.context();
  const Date now = context.clock().now();
  List children;
  children.push_back(TextView{dateLine(context, now), "", std::nullopt}.toValue());
  const std::string summary = today_ ? cycleSummary(context, *today_) : "";
  children.push_back(
      TextView{summary.empty() ? context.translate(kNoCycle) : summary, "", std::nullopt}
          .toValue());
  if (today_ && today_->mark > health::kOrdinaryDay)
    children.push_back(TextView{
        fillIn(context.translate("Сегодня отмечено: %@."), {womanDayToRead(context, today_->mark)}),
        "", std::nullopt}
                           .toValue());
  children.push_back(
      ButtonsView{{{std::string(kOpenDay), context.translate("Открыть сегодняшний день"), {}},
                   {std::string(kOpenCalendar), context.translate("Календарь цикла"), {}}}}
          .toValue());
  children.push_back(TextView{context.translate(kOwnMarks), "", kHint}.toValue());
  return PageView{pageTitle(context), std::move(children)}.toValue();
}

EventResult CycleToday::tap(std::string_view target) {
  const Context& context = app_.context();
  if (target == kOpenDay) {
    host_.push(std::make_shared<DayEditor>(app_, host_, gid_, context.clock().now()));
    return {};
  }
  if (target == kOpenCalendar) {
    state_.calendarYear = context.dates().decodeDate(context.clock().now()).year;
    host_.push(std::make_shared<CycleCalendar>(app_, host_, gid_, state_, true, false));
    return {};
  }
  return EventResult::refused("the page has no control " + std::string(target));
}

}  // namespace lad::shell
