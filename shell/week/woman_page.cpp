#include "shell/week/woman_page.h"

#include "charts/chart.h"
#include "charts/preg_graph.h"
#include "drawing/image_size.h"
#include "drawing/path.h"
#include "drawing/recording_canvas.h"
#include "drawing/render.h"
#include "health/growth_series.h"
#include "health/pregnancy_calendar.h"
#include "health/weight_chart.h"
#include "shell/pages.h"
#include "shell/views/charts.h"
#include "shell/views/pages.h"
#include "shell/views/rows.h"
#include "shell/views/week.h"
#include "shell/week/body_hints.h"
#include "shell/week/page_title.h"
#include "shell/week/reading_screen.h"
#include "shell/week/week_facts.h"
#include "store/setup_data.h"

namespace lad::shell {

namespace {

constexpr double kWidth = 300, kGraphHeight = 200;  // in units of the device scale
constexpr drawing::Size kBodySize{640, 800};        // the body pictures' own size
constexpr drawing::Color kInk{0.17, 0.14, 0.13};
constexpr drawing::Color kCard{1, 1, 1, 0.92};

// The fruit the child's size is like this week, and the child's length.
std::string fruitLine(const Context& context, int week, int day) {
  const auto size = health::getVesRost((day - 1) / 7, 1);
  return context.translate(fruitCaption(week)) + " " + bodyPageLength(day, size.rost);
}

}  // namespace

WomanPage::WomanPage(Application& app, ScreenHost& host, std::string gid, double scale)
    : app_(app), host_(host), gid_(std::move(gid)), scale_(scale) {}

Value WomanPage::bodyPicture(int day) const {
  const Context& context = app_.context();
  const int month = bodyMonth(day);
  const std::string picture = "wom-" + std::to_string(month) + ".png";
  const auto size =
      drawing::pngSize((context.resourcesDir() / "images" / picture).string()).value_or(kBodySize);
  return HintPictureView{
      picture, size.w, size.h,
      bodyHints(context.resourcesDir() / "wom-hints.json", month, context.translator())}
      .toValue();
}

Value WomanPage::weightGraph(const Map& setup) const {
  charts::Chart chart(scale_, app_.imagesDir());
  chart.prepare(health::weightChart(app_.store(), gid_, setup, 1));
  const drawing::Size size{kWidth * scale_, kGraphHeight * scale_};
  return SvgView{"weight", chart.svg(size), size.w, size.h}.toValue();
}

Value WomanPage::wheel(int week) const {
  const Context& context = app_.context();
  const charts::PregGraphStyle style{context.translator(), week, scale_, kInk, false,
                                     app_.imagesDir()};
  // The wheel's height depends on its list, so it is drawn once to be measured.
  drawing::RecordingCanvas measure;
  const double width = kWidth * scale_;
  const double height = charts::drawWomanChart(measure, {0, 0, width, 1e5}, style);
  const std::string svg = drawing::renderSvg({width, height}, [&](drawing::Canvas& c) {
    // A light card under the wheel keeps its week numbers readable over any theme's picture.
    c.fillPath(drawing::Path().addRoundedRect({0, 0, width, height}, 16 * scale_), kCard);
    charts::drawWomanChart(c, {0, 0, width, height}, style);
  });
  return SvgView{"wheel", svg, width, height}.toValue();
}

Value WomanPage::view() {
  const Context& context = app_.context();
  const Map setup = loadSetupData(app_.store(), gid_);
  const int week = health::getCurWeek(context, setup);
  const int day = health::getCurDay(context, setup);
  List children;
  children.push_back(bodyPicture(day));
  children.push_back(TextView{fruitLine(context, week, day), "fruit", 1}.toValue());
  children.push_back(ButtonsView{{{std::string(kDetail), context.translate("Подробнее"), {}},
                                  {std::string(kSize), context.translate("Размер малыша"), {}}}}
                         .toValue());
  children.push_back(SectionView{context.translate("Прибавка в весе (килограммы)")}.toValue());
  children.push_back(weightGraph(setup));
  children.push_back(wheel(week));
  return PageView{pageTitle(context, kWomanPage), std::move(children)}.toValue();
}

// The mother's week by week, or the child's size by week, with the present week marked.
EventResult WomanPage::tap(std::string_view target) {
  if (target != kDetail && target != kSize)
    return EventResult::refused("the woman page has no control " + std::string(target));
  const Context& context = app_.context();
  const Map setup = loadSetupData(app_.store(), gid_);
  const bool size = target == kSize;
  host_.push(openWeekText(context, context.translate(size ? "Размер малыша" : "Подробнее"),
                          size ? "childsize-u" : "woman-u", health::getCurWeek(context, setup),
                          setup["dat1"].asDate()));
  return {};
}

}  // namespace lad::shell
