#include "shell/title_page.h"

#include "core/menu_table.h"
#include "health/pregnancy_calendar.h"
#include "shell/pages.h"
#include "shell/views/pages.h"
#include "shell/views/rows.h"
#include "store/setup_data.h"

namespace lad::shell {

namespace {

std::string pageCaption(const Context& context) {
  const Map* row = menuRow(context.values().tabMenu, kTitlePage);
  return row ? (*row)["name"].text() : std::string();
}

}  // namespace

// The growth graphs join this page when the charts exist; until then it says where the
// pregnancy stands in words.
Value TitlePage::view() {
  Context& context = app_.context();
  const Map setup = loadSetupData(app_.store(), gid_);
  List children;
  children.push_back(
      TextView{ageString(context, AgeMode::RunningWeek, setup), "", std::nullopt}.toValue());
  children.push_back(TextView{pregnancyStateLine(context, setup), "", std::nullopt}.toValue());
  const int week = getCurWeek(context, setup);
  if (week > 0)
    children.push_back(TextView{trimesterName(context, week), "", std::nullopt}.toValue());
  return PageView{pageCaption(context), std::move(children)}.toValue();
}

EventResult TitlePage::tap(std::string_view target) {
  return EventResult::refused("the title page has no control " + std::string(target));
}

}  // namespace lad::shell
