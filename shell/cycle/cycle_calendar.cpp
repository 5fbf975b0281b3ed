#include "shell/cycle/cycle_calendar.h"

#include "core/context.h"
#include "core/date_names.h"
#include "core/text_fill.h"
#include "shell/cycle/cycle_marks.h"
#include "shell/diary/day_editor.h"
#include "shell/diary/diary_list.h"
#include "shell/views/cycle.h"

namespace lad::shell {

namespace {

constexpr std::string_view kYearBack = "cycle:year:back";
constexpr std::string_view kYearForward = "cycle:year:forward";
constexpr std::string_view kDayPrefix = "cycle:day:";
constexpr std::string_view kClose = "cycle:close";
constexpr int kFirstYear = 2000;  // the diary counts its days from here

constexpr const char* kNote =
    "Календарь показывает только ваши собственные отметки. Программа не рассчитывает и не "
    "предсказывает дни цикла; если что-то вызывает вопросы, обсудите это со своим врачом.";
constexpr const char* kNoMarks =
    "В этом году отметок пока нет. Чтобы отметить день, откройте его в дневнике и выберите "
    "«Тип»: первый или последний день месячных, овуляцию или беременность.";

// Monday first, as a Russian calendar reads.
std::vector<std::string> weekdayNames(const Context& context) {
  std::vector<std::string> names;
  for (int day : {2, 3, 4, 5, 6, 7, 1}) names.push_back(weekday(day, context.translator()));
  return names;
}

std::vector<CycleLegendView> legend(const Context& context) {
  return {
      {"period", false, context.translate("Месячные")},
      {"ovulation", false, context.translate("Овуляция")},
      {"pregnancy", false, context.translate("Беременность")},
      {"period", true, context.translate("Последний день еще не отмечен")},
  };
}

bool anyMark(const std::vector<health::CycleDay>& days) {
  for (const health::CycleDay& d : days)
    if (d.mark != health::kOrdinaryDay) return true;
  return false;
}

}  // namespace

CycleCalendar::CycleCalendar(Application& app, ScreenHost& host, std::string gid, DiaryState& state,
                             bool closable, bool fromMenu)
    : app_(app), host_(host), gid_(std::move(gid)), state_(state), closable_(closable) {
  state_.keepFor(gid_);
  if (fromMenu || state_.calendarYear == 0) state_.calendarYear = presentYear();
  load();
}

// The year shown, and today's place, which another year than the present one does not hold.
void CycleCalendar::load() {
  const Context& context = app_.context();
  const Date now = context.clock().now();
  days_ = health::cycleYear(app_.store(), state_.calendarYear, now);
  std::optional<health::CycleDay> today;
  if (state_.calendarYear != presentYear())
    today = health::cycleToday(app_.store(), now);
  else if (const health::CycleDay* d = health::cycleDayAt(days_, context.dates(), now))
    today = *d;
  summary_ = today ? cycleSummary(context, *today) : "";
}

int CycleCalendar::presentYear() const {
  const Context& context = app_.context();
  return context.dates().decodeDate(context.clock().now()).year;
}

Value CycleCalendar::view() {
  const Context& context = app_.context();
  const DateCodec& dates = context.dates();
  const Date now = context.clock().now();
  const int year = state_.calendarYear;
  CycleCalendarView v;
  v.title = context.translate("Календарь цикла");
  v.year = {std::to_string(year),
            {std::string(kYearBack), "‹", year > kFirstYear},
            {std::string(kYearForward), "›", year < presentYear()}};
  v.summary = summary_;
  if (!anyMark(days_)) v.empty = context.translate(kNoMarks);
  v.weekdays = weekdayNames(context);
  for (const health::CycleDay& d : days_) {
    const DateParts parts = dates.decodeDate(d.day);
    if (parts.day == 1)
      v.months.push_back({capitalizeFirst(monthName(parts.month, context.translator())),
                          (parts.weekday + 5) % 7,
                          {}});
    v.months.back().days.push_back(
        {parts.day, phaseName(d.phase), d.open, d.mark != health::kOrdinaryDay, shownCycleDay(d),
         dates.noTime(d.day) == dates.noTime(now), dayTarget(context, kDayPrefix, d.day)});
  }
  v.legend = legend(context);
  v.note = context.translate(kNote);
  if (closable_) v.close = ButtonView{std::string(kClose), context.translate("Закрыть"), {}};
  return v.toValue();
}

EventResult CycleCalendar::tap(std::string_view target) {
  if (target == kClose && closable_) {
    closed_ = true;
    return {};
  }
  if (target == kYearBack) return changeYear(-1);
  if (target == kYearForward) return changeYear(1);
  if (auto day = targetDay(app_.context(), target, kDayPrefix)) {
    host_.push(std::make_shared<DayEditor>(app_, host_, gid_, *day));
    return {};
  }
  return EventResult::refused("the calendar has no control " + std::string(target));
}

EventResult CycleCalendar::changeYear(int by) {
  const int year = state_.calendarYear + by;
  if (year < kFirstYear || year > presentYear())
    return EventResult::refused("no calendar year " + std::to_string(year));
  state_.calendarYear = year;
  load();
  return {};
}

}  // namespace lad::shell
