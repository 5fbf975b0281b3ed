#include "shell/week/today_page.h"

#include "core/text_fill.h"
#include "health/growth_series.h"
#include "health/pregnancy_calendar.h"
#include "shell/pages.h"
#include "shell/views/pages.h"
#include "shell/week/page_title.h"
#include "shell/week/reading.h"
#include "shell/week/week_facts.h"
#include "store/setup_data.h"

namespace lad::shell {

namespace {

constexpr const char* kDay = "dd.MM.yyyy";

// "1" to "3"; past week 42 the week, the day and the week from conception are "-".
FactsView weekCards(const Context& context, const Map& setup, int week, int day) {
  const bool shown = health::weekIsShown(week);
  const auto shownOrDash = [shown](std::string text) { return shown ? text : "-"; };
  return FactsView{{{context.translate("Триместр"), std::to_string(health::trimester(week))},
                    {context.translate("Неделя"), shownOrDash(std::to_string(week))},
                    {context.translate("День"), shownOrDash(std::to_string(day))},
                    {context.translate("От зачатия"),
                     shownOrDash(health::ageString(context, health::AgeMode::EmbryoWeek, setup))}}};
}

// The period of the pregnancy with the child's weight and length from the growth table of the
// whole weeks passed.
FactView sizeCard(const Context& context, const Map& setup, int day, double scale) {
  const auto size = health::getVesRost((day - 1) / 7, scale);
  const double length = health::shownLength(day, size.rost);
  return {health::ageString(context, health::AgeMode::PeriodName, setup),
          fillIn(context.translate("%.1f гр."), {formatFixed(size.ves, 1)}) + "\n" +
              fillIn(context.translate("%.1f мм."), {formatFixed(length, 1)})};
}

FactView birthCard(const Context& context, const Map& setup) {
  const auto born = setup["birthdate2"].asDate();
  const auto expected = setup["birthdate"].asDate();
  const auto date = born ? born : expected;
  return {context.translate(born ? "Дата родов\n " : "Приблизительная дата родов"),
          date ? context.dates().dateToString(*date, kDay) : "-"};
}

}  // namespace

TodayPage::TodayPage(Application& app, std::string gid, double scale)
    : app_(app), gid_(std::move(gid)), scale_(scale) {}

// Five screens: where the pregnancy stands, the child's size and the date of birth, the moving
// picture, and the week's texts for the mother and for the child.
Value TodayPage::view() {
  const Context& context = app_.context();
  const Map setup = loadSetupData(app_.store(), gid_);
  const int week = health::getCurWeek(context, setup);
  const int day = health::getCurDay(context, setup);
  ReadingOptions options;
  options.justGroup = week;
  options.top = 0;
  ScreensView screens{
      {{weekCards(context, setup, week, day).toValue()},
       {FactsView{{sizeCard(context, setup, day, scale_), birthCard(context, setup)}}.toValue()},
       {MovieView{movieFrames(week), 1000}.toValue()},
       {readingView(context, "woman", "woman-u", options).toValue()},
       {readingView(context, "child", "child-u", options).toValue()}}};
  return PageView{pageTitle(context, kTodayPage), {screens.toValue()}}.toValue();
}

EventResult TodayPage::tap(std::string_view target) {
  return EventResult::refused("the week page has no control " + std::string(target));
}

}  // namespace lad::shell
