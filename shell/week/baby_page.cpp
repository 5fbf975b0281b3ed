#include "shell/week/baby_page.h"

#include <charconv>

#include "drawing/render.h"
#include "health/pregnancy_calendar.h"
#include "shell/pages.h"
#include "shell/views/charts.h"
#include "shell/views/pages.h"
#include "shell/views/rows.h"
#include "shell/week/organ_ring.h"
#include "shell/week/page_title.h"
#include "shell/week/reading.h"
#include "shell/week/reading_screen.h"
#include "shell/week/week_facts.h"
#include "store/setup_data.h"

namespace lad::shell {

namespace {

constexpr std::string_view kOrganTarget = "baby:organ:";
constexpr double kRingSide = 300;  // in units of the device scale

// "mozg-u" shows the picture "org-mozg.png".
std::string organIcon(std::string_view file) {
  return "org-" + std::string(file.substr(0, file.size() - 2)) + ".png";
}

}  // namespace

BabyPage::BabyPage(Application& app, ScreenHost& host, std::string gid, double scale)
    : app_(app), host_(host), gid_(std::move(gid)), scale_(scale) {}

Value BabyPage::ring(int daysSinceStart) const {
  std::vector<OrganArc> arcs;
  // The achievements are the page's text as a whole; the ring holds the organs.
  for (const auto& organ : organs().subspan(1))
    arcs.push_back({app_.context().translate(organ.caption), organDegrees(organ, daysSinceStart)});
  const drawing::Size size{kRingSide * scale_, kRingSide * scale_};
  const std::string svg = drawing::renderSvg(size, [&](drawing::Canvas& c) {
    drawOrganRing(c, {0, 0, size.w, size.h}, arcs, scale_);
  });
  return SvgView{"organs", svg, size.w, size.h}.toValue();
}

Value BabyPage::organList(int daysSinceStart) const {
  List rows;
  const auto all = organs();
  for (std::size_t i = 0; i < all.size(); ++i) {
    const int percent = organDegrees(all[i], daysSinceStart) * 100 / 360;
    RowView row;
    row.id = std::string(kOrganTarget) + std::to_string(i);
    row.icon = organIcon(all[i].file);
    row.caption = app_.context().translate(all[i].caption);
    row.badge = std::to_string(percent) + "%";
    rows.push_back(row.toValue());
  }
  return ListView{std::move(rows)}.toValue();
}

Value BabyPage::organText(const Map& setup, int week) const {
  const auto& organ = organs()[organ_];
  ReadingOptions options;
  options.start = setup["dat1"].asDate();
  if (organ_ == 0) {
    options.lineDistance = -8;
    options.dimAfterWeek = week;
  } else {
    options.highlightWeek = week;
  }
  return readingView(app_.context(), "organ", organ.file, options).toValue();
}

Value BabyPage::view() {
  Context& context = app_.context();
  const Map setup = loadSetupData(app_.store(), gid_);
  const int days = health::getCurDay(context, setup) - 1;
  List children;
  children.push_back(
      TextView{health::ageString(context, health::AgeMode::ObstetricAge, setup), "", std::nullopt}
          .toValue());
  children.push_back(ring(days));
  children.push_back(
      ButtonsView{{{std::string(kChild), context.translate("Малыш по неделям"), {}}}}.toValue());
  children.push_back(organList(days));
  children.push_back(SectionView{context.translate(organs()[organ_].caption)}.toValue());
  children.push_back(organText(setup, health::getCurWeek(context, setup)));
  return PageView{pageTitle(context, kBabyPage), std::move(children)}.toValue();
}

EventResult BabyPage::tap(std::string_view target) {
  if (target == kChild) {
    // The child's week by week, with the present week marked.
    const Context& context = app_.context();
    const Map setup = loadSetupData(app_.store(), gid_);
    host_.push(openWeekText(context, context.translate("Малыш по неделям"), "child-u",
                            health::getCurWeek(context, setup), setup["dat1"].asDate()));
    return {};
  }
  if (target.starts_with(kOrganTarget)) {
    const auto number = target.substr(kOrganTarget.size());
    std::size_t index = 0;
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), index);
    if (error == std::errc() && end == number.data() + number.size() && index < organs().size()) {
      organ_ = index;
      return {};
    }
  }
  return EventResult::refused("the baby page has no control " + std::string(target));
}

}  // namespace lad::shell
