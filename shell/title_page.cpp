#include "shell/title_page.h"

#include "charts/chart.h"
#include "core/menu_table.h"
#include "drawing/render.h"
#include "health/development_chart.h"
#include "health/growth_charts.h"
#include "health/pregnancy_calendar.h"
#include "shell/pages.h"
#include "shell/views/charts.h"
#include "shell/views/pages.h"
#include "shell/views/rows.h"
#include "store/setup_data.h"

namespace lad::shell {

namespace {

constexpr double kChartWidth = 300, kChartHeight = 150;  // in units of the device scale

std::string pageCaption(const Context& context) {
  const Map* row = menuRow(context.values().tabMenu, kTitlePage);
  return row ? (*row)["name"].text() : std::string();
}

}  // namespace

TitlePage::TitlePage(Application& app, std::string gid, double scale)
    : app_(app), gid_(std::move(gid)), scale_(scale) {
  charts_ = growthCharts(loadSetupData(app_.store(), gid_));
}

List TitlePage::growthCharts(const Map& setup) const {
  const Context& context = app_.context();
  const auto dat1 = setup["dat1"].asDate();
  if (!dat1) return {};
  std::optional<int> birthDay;
  if (const auto birth = setup["birthdate2"].asDate())
    birthDay = context.dates().getDays(*dat1, *birth);
  const auto uzi = health::getUzi(app_.store(), gid_, *dat1);
  const bool dark = context.values().themeDarkIcons;
  const std::pair<health::GrowthMeasure, const char*> kinds[] = {
      {health::GrowthMeasure::Length, "Рост (миллиметры)"},
      {health::GrowthMeasure::Weight, "Вес (граммы)"}};
  const drawing::Size size{kChartWidth * scale_, kChartHeight * scale_};
  const health::DevelopmentInput development{health::getCurDay(context, setup), birthDay, scale_,
                                             dark};
  List charts;
  charts.push_back(SvgView{"development",
                           drawing::renderSvg(size,
                                              [&](drawing::Canvas& c) {
                                                health::drawDevelopment(c, {0, 0, size.w, size.h},
                                                                        context, development,
                                                                        app_.imagesDir());
                                              }),
                           size.w, size.h}
                       .toValue());
  for (const auto& [measure, caption] : kinds) {
    charts::Chart chart(scale_, app_.imagesDir());
    chart.prepare(health::growthChart({measure, context.translate(caption), uzi, birthDay, dark}));
    const std::string id = measure == health::GrowthMeasure::Length ? "rost" : "ves";
    charts.push_back(SvgView{id, chart.svg(size), size.w, size.h}.toValue());
  }
  return charts;
}

Value TitlePage::view() {
  Context& context = app_.context();
  const Map setup = loadSetupData(app_.store(), gid_);
  List children;
  children.push_back(
      TextView{health::ageString(context, health::AgeMode::RunningWeek, setup), "", std::nullopt}
          .toValue());
  children.push_back(
      TextView{health::pregnancyStateLine(context, setup), "", std::nullopt}.toValue());
  const int week = health::getCurWeek(context, setup);
  if (week > 0)
    children.push_back(TextView{health::trimesterName(context, week), "", std::nullopt}.toValue());
  children.insert(children.end(), charts_.begin(), charts_.end());
  return PageView{pageCaption(context), std::move(children)}.toValue();
}

EventResult TitlePage::tap(std::string_view target) {
  return EventResult::refused("the title page has no control " + std::string(target));
}

}  // namespace lad::shell
