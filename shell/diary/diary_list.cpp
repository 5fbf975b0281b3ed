#include "shell/diary/diary_list.h"

#include <algorithm>
#include <utility>

#include "cloud/cloud_writers.h"
#include "core/context.h"
#include "core/edition.h"
#include "core/menu_table.h"
#include "core/settings.h"
#include "core/text_fill.h"
#include "shell/cycle/cycle_calendar.h"
#include "shell/cycle/cycle_marks.h"
#include "shell/diary/day_cells.h"
#include "shell/diary/day_editor.h"
#include "shell/diary/day_search.h"
#include "shell/pages.h"
#include "shell/question.h"
#include "shell/views/diary.h"
#include "store/day_loader.h"
#include "store/day_photo.h"
#include "store/day_sections.h"
#include "store/day_strings.h"
#include "store/dictionary.h"
#include "store/records.h"
#include "store/setup_data.h"
#include "store/values/calendar_span.h"
#include "store/values/today_note.h"

namespace lad::shell {

namespace {

constexpr std::string_view kAdd = "diary:add";
constexpr std::string_view kSearch = "diary:search";
constexpr std::string_view kMore = "diary:more";
constexpr std::string_view kEarlier = "diary:earlier";
constexpr std::string_view kYearBack = "diary:year:back";
constexpr std::string_view kYearForward = "diary:year:forward";
constexpr std::string_view kDayPrefix = "diary:day:";
constexpr std::string_view kDeletePrefix = "diary:delete:";
constexpr std::string_view kCyclePrefix = "diary:cycle:";
constexpr std::size_t kCellsAtOnce = 30;  // about three phone screens of days
constexpr std::size_t kCellsBefore = 5;   // sent above the day the list opens at
constexpr int kOldestChildYear = 14;
constexpr int kConsent = 1;  // "Да"

// Regims of the list: every day of the period, or only the days with records.
constexpr int kAllDaysRegim = 1;
int listRegim(const Context& context) {
  if (context.settings().boolForKey("emptyNote")) return kAllDaysRegim;
  return isCycleEdition(context.values().appid) ? 4 : 5;
}

const char* const kEmpty = "Нет данных. Для добавление записей или фотографий нажмите на кнопку +.";

int presentYear(const Context& context, const Map& setup) {
  const Date now = context.clock().now();
  if (isChildEdition(context.values().appid)) {
    const std::optional<Date> born = setup["birthdate"].asDate();
    return calendarSpan(context.dates(), born ? *born : now, now).years + 1;
  }
  return context.dates().decodeDate(now).year;
}

std::string pageTitle(const Context& context) {
  const Map* row = menuRow(context.values().tabMenu, kDiaryPage);
  return row ? (*row)["name"].text() : context.translate("Дневник");
}

}  // namespace

std::optional<Date> targetDay(const Context& context, std::string_view target,
                              std::string_view prefix) {
  if (!target.starts_with(prefix)) return std::nullopt;
  return context.dates().dateFromStringFormat(target.substr(prefix.size()), "dd.MM.yyyy");
}

std::string dayTarget(const Context& context, std::string_view prefix, Date day) {
  return std::string(prefix) + context.dates().dateToString(day, "dd.MM.yyyy");
}

DiaryList::DiaryList(Application& app, ScreenHost& host, std::string gid, DiaryState& state,
                     bool fromMenu)
    : app_(app), host_(host), gid_(std::move(gid)), state_(state) {
  state_.keepFor(gid_);
  setup_ = loadSetupData(app_.store(), gid_);
  if (fromMenu || state_.year == 0) state_.year = presentYear(app_.context(), setup_);
  load();
}

// Every day of the period with its strings made in date order (where the load left them to be
// made), since an illness or a diet runs on from the day it starts.
void DiaryList::load() {
  Context& context = app_.context();
  listData_ = loadConstList(app_.store(), 0, std::nullopt);
  const std::optional<Date> first = setup_["dat1"].asDate();
  const int regim = listRegim(context);
  days_ =
      loadNoteData(app_.store(), regim, state_.year, first ? *first : context.clock().now(), gid_);
  Map running = setup_;
  for (Value& day : days_)
    if (Map* m = day.asMap(); m && !(*m)["compliteOK"].boolValue())
      updateNoteStrings(app_.store(), *m, running, regim, false);
  rows_.assign(days_.size(), std::nullopt);
  if (isCycleEdition(context.values().appid))
    cycle_ = health::cycleYear(app_.store(), state_.year, context.clock().now());
  updateSearch();
}

const List& DiaryList::rowsOf(std::size_t day) {
  if (!rows_[day]) {
    List rows;
    noteStructToTodayNote(app_.context(), *days_[day].asMap(), rows, listData_);
    rows_[day] = std::move(rows);
  }
  return *rows_[day];
}

void DiaryList::updateSearch() {
  matches_.clear();
  List shown;
  for (std::size_t i = 0; i < days_.size(); ++i)
    if (state_.search.empty() || dayMatches(app_.context(), rowsOf(i), state_.search)) {
      matches_.push_back(i);
      shown.push_back(days_[i]);
    }
  todayPlace_ = prepareGroupData(app_.context(), shown, setup_, sections_);
}

// The place among the shown days to bring into view: the day edited last, else today's.
std::size_t DiaryList::scrollPlace() const {
  if (state_.lastEdited)
    for (std::size_t i = 0; i < matches_.size(); ++i)
      if (days_[matches_[i]]["dat"].asDate() == state_.lastEdited) return i;
  const std::int64_t section = todayPlace_["section"].intValue();
  const std::int64_t row = todayPlace_["row"].intValue();
  if (section < 0 || row < 0) return 0;
  std::size_t place = 0;
  for (std::int64_t s = 0; s < section && s < static_cast<std::int64_t>(sections_.size()); ++s)
    place += static_cast<std::size_t>(sections_[s]["count"].intValue());
  return std::min(place + static_cast<std::size_t>(row), matches_.size());
}

// The window of days sent opens around the place to show, unless that lies in it already; the
// browser widens it at either end as the user scrolls.
void DiaryList::placeWindow(std::size_t place) {
  if (state_.count == 0 || place < state_.first || place >= state_.first + state_.count ||
      state_.first >= matches_.size()) {
    state_.first = place > kCellsBefore ? place - kCellsBefore : 0;
    state_.count = kCellsAtOnce;
  }
  state_.count = std::min(state_.count, matches_.size() - std::min(state_.first, matches_.size()));
}

// The cells of the window, each section's heading before its first day in it.
List DiaryList::items() {
  const Context& context = app_.context();
  List out;
  std::size_t sectionEnd = 0;
  std::size_t section = 0;
  for (std::size_t k = state_.first; k < state_.first + state_.count; ++k) {
    bool heading = k == state_.first;
    while (section < sections_.size() &&
           k >= sectionEnd + static_cast<std::size_t>(sections_[section]["count"].intValue())) {
      sectionEnd += static_cast<std::size_t>(sections_[section]["count"].intValue());
      ++section;
      heading = heading || k == sectionEnd;
    }
    if (heading && section < sections_.size())
      out.push_back(
          DiarySectionView{sections_[section]["name"].text(), sections_[section]["name2"].text()}
              .toValue());
    const std::size_t i = matches_[k];
    DayCellView cell = dayCell(context, *days_[i].asMap(), rowsOf(i));
    const Date day = *days_[i]["dat"].asDate();
    cell.id = dayTarget(context, kDayPrefix, day);
    cell.deleteTarget = dayTarget(context, kDeletePrefix, day);
    if (const health::CycleDay* d = health::cycleDayAt(cycle_, context.dates(), day))
      cell.cycle = cycleMark(context, *d, dayTarget(context, kCyclePrefix, day));
    out.push_back(cell.toValue());
  }
  return out;
}

std::optional<YearView> DiaryList::yearView() const {
  const Context& context = app_.context();
  if (isPregnancyEdition(context.values().appid)) return std::nullopt;
  const std::string caption = fillIn(context.translate("%d-й год"), state_.year);
  const bool child = isChildEdition(context.values().appid);
  return YearView{caption,
                  {std::string(kYearBack), "‹", state_.year > 1},
                  {std::string(kYearForward), "›", !child || state_.year < kOldestChildYear}};
}

Value DiaryList::view() {
  const Context& context = app_.context();
  DiaryView v;
  v.title = pageTitle(context);
  v.add = kAdd;
  v.search = state_.search;
  v.searchTarget = kSearch;
  v.searchHint = context.translate("Поиск");
  v.year = yearView();
  const std::size_t place = scrollPlace();
  placeWindow(place);
  v.items = items();
  if (matches_.empty()) v.message = context.translate(kEmpty);
  if (state_.first > 0) v.earlier = kEarlier;
  if (state_.first + state_.count < matches_.size()) v.more = kMore;
  if (place < matches_.size())
    v.scrollTo = dayTarget(context, kDayPrefix, *days_[matches_[place]]["dat"].asDate());
  return v.toValue();
}

// The day edited last stays in view until the list takes an event; a refused one keeps it, so
// that it leaves the view as it was.
EventResult DiaryList::tap(std::string_view target) {
  const std::optional<Date> edited = std::exchange(state_.lastEdited, std::nullopt);
  EventResult result = tapControl(target);
  if (!result.ok()) state_.lastEdited = edited;
  return result;
}

EventResult DiaryList::tapControl(std::string_view target) {
  const Context& context = app_.context();
  if (target == kAdd) return openDay(context.clock().now());
  if (target == kMore) {
    state_.count += kCellsAtOnce;
    return {};
  }
  if (target == kEarlier) {
    const std::size_t moved = std::min(state_.first, kCellsAtOnce);
    state_.first -= moved;
    state_.count += moved;
    return {};
  }
  if (target == kYearBack) return changeYear(-1);
  if (target == kYearForward) return changeYear(1);
  if (auto day = targetDay(context, target, kDayPrefix)) return openDay(*day);
  if (auto day = targetDay(context, target, kCyclePrefix)) return openCalendar(*day);
  if (auto at = dayAt(target, kDeletePrefix)) {
    askDeletion(*at);
    return {};
  }
  return EventResult::refused("the diary has no control " + std::string(target));
}

EventResult DiaryList::change(std::string_view target, const Value& value) {
  const std::string* text = value.asText();
  if (target != kSearch || !text) return EventResult::refused("the diary takes a search text only");
  state_.lastEdited.reset();
  state_.search = *text;
  state_.count = 0;
  updateSearch();
  return {};
}

std::optional<std::size_t> DiaryList::dayAt(std::string_view target,
                                            std::string_view prefix) const {
  const auto day = targetDay(app_.context(), target, prefix);
  if (!day) return std::nullopt;
  for (std::size_t i : matches_)
    if (days_[i]["dat"].asDate() == day) return i;
  return std::nullopt;
}

EventResult DiaryList::changeYear(int by) {
  const int year = state_.year + by;
  const bool child = isChildEdition(app_.context().values().appid);
  if (year < 1 || (child && year > kOldestChildYear))
    return EventResult::refused("no diary year " + std::to_string(year));
  state_.year = year;
  state_.count = 0;
  load();
  return {};
}

EventResult DiaryList::openDay(Date day) {
  state_.lastEdited = day;
  host_.push(std::make_shared<DayEditor>(app_, host_, gid_, day));
  return {};
}

// The calendar of the day's year opens over the list.
EventResult DiaryList::openCalendar(Date day) {
  state_.calendarYear = app_.context().dates().decodeDate(day).year;
  host_.push(std::make_shared<CycleCalendar>(app_, host_, gid_, state_, true, false));
  return {};
}

void DiaryList::askDeletion(std::size_t at) {
  const Date day = *days_[at]["dat"].asDate();
  const std::string analyses = days_[at]["analizy"].text();
  host_.openPopup(
      std::make_unique<Question>(
          Question::ask(app_.context(), "Удалить все записи и фотографию этого дня?", "Удаление")),
      // The list may be rebuilt before the answer comes: the action keeps nothing of it.
      [&app = app_, gid = gid_, day, analyses](const PopupAnswer& answer) {
        if (answer.button != kConsent) return EventResult();
        noteDeleteValue(app.store(), day, std::nullopt, gid);
        removeDayFiles(app.context(), day, gid, analyses);
        cloud::cloudDayChanged(app.store(), day, gid);
        EventResult result;
        result.installationChanged = true;
        return result;
      });
}

}  // namespace lad::shell
