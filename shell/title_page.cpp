#include "shell/title_page.h"

#include "core/menu_table.h"
#include "health/pregnancy_calendar.h"
#include "shell/pages.h"
#include "shell/view.h"
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
  children.push_back(textView(ageString(context, AgeMode::RunningWeek, setup)));
  children.push_back(textView(pregnancyStateLine(context, setup)));
  const int week = getCurWeek(context, setup);
  if (week > 0) children.push_back(textView(trimesterName(context, week)));
  return pageView(pageCaption(context), std::move(children));
}

EventResult TitlePage::tap(std::string_view target) {
  return EventResult::refused("the title page has no control " + std::string(target));
}

}  // namespace lad::shell
