#include "shell/week/reading_screen.h"

#include "shell/views/pages.h"
#include "shell/week/reading.h"

namespace lad::shell {

Value ReadingScreen::view() {
  List children;
  children.push_back(ButtonsView{{{std::string(kClose), close_, {}}}}.toValue());
  children.push_back(content_.toValue());
  return PageView{title_, std::move(children)}.toValue();
}

EventResult ReadingScreen::tap(std::string_view target) {
  if (target != kClose) return EventResult::refused("no control " + std::string(target));
  closed_ = true;
  return {};
}

std::shared_ptr<ReadingScreen> openWeekText(const Context& context, std::string title,
                                            std::string_view resource, int week,
                                            std::optional<Date> start) {
  ReadingOptions options;
  options.highlightWeek = week;
  options.start = start;
  return std::make_shared<ReadingScreen>(std::move(title), context.translate("Готово"),
                                         readingView(context, "reading", resource, options));
}

}  // namespace lad::shell
