#include "shell/contraction_screen.h"

#include "charts/chart.h"
#include "health/contraction_period.h"
#include "health/contraction_series.h"
#include "health/contraction_store.h"
#include "shell/views/charts.h"
#include "shell/views/pages.h"
#include "shell/views/rows.h"

namespace lad::shell {

namespace {

using namespace std::chrono_literals;

constexpr double kChartWidth = 300, kChartHeight = 130;  // in units of the device scale

// The tick chain of a timer, whichever page armed it: it goes on when the page is gone, and
// each tick redraws every browser.
EventResult armTick(health::ContractionTimer& timer) {
  EventResult result;
  result.timerDelay = 1s;
  result.timer = [&timer] { return timer.onTimer() ? armTick(timer) : EventResult{}; };
  return result;
}

}  // namespace

std::shared_ptr<ContractionScreen> ContractionScreen::open(Application& app, std::string pregguid,
                                                           double scale) {
  std::shared_ptr<ContractionScreen> screen(new ContractionScreen(app, std::move(pregguid), scale));
  screen->updateGraph();
  return screen;
}

ContractionScreen::ContractionScreen(Application& app, std::string pregguid, double scale)
    : app_(app),
      pregguid_(std::move(pregguid)),
      scale_(scale),
      timer_(app.contractionTimer(pregguid_)) {}

void ContractionScreen::updateGraph() {
  data_ = health::loadContractions(app_.store(), pregguid_);
  const health::ContractionSeries series = health::buildSeries(data_);
  intervalChart_ = chartView("graph1", series.intervals, "График интервалов между схватками");
  durationChart_ = chartView("graph2", series.durations, "График продолжительности схваток");
  trend_ = health::testTrend(data_);
  groups_ = health::recountOst(data_, app_.context().dates());
}

Value ContractionScreen::chartView(const char* id, const List& points, const char* caption) const {
  const Context& context = app_.context();
  charts::Chart chart(scale_, {});  // the counter's charts use no pictures
  chart.prepare(health::contractionChart(points, context.translate(caption),
                                         context.values().themeDarkIcons));
  const drawing::Size size{kChartWidth * scale_, kChartHeight * scale_};
  return SvgView{id, chart.svg(size), size.w, size.h}.toValue();
}

Value ContractionScreen::view() {
  const Context& context = app_.context();
  const TimerView timer{timer_.visible() && timer_.running()
                            ? timer_.runningText(context.clock().now())
                            : health::cperiod(0),
                        timer_.running(), timer_.visible()};
  const TextView info{context.translate(trend_.text), "trend", trend_.regim};
  const ButtonsView buttons{{
      {std::string(timer_.running() ? kContractionStop : kContractionStart),
       context.translate(timer_.running() ? "СТОП" : "СТАРТ"), std::nullopt},
      {std::string(kContractionClose), context.translate("Закрыть"), std::nullopt},
  }};
  List children{intervalChart_, durationChart_, info.toValue(), timer.toValue(), buttons.toValue()};
  for (auto& v : listViews()) children.push_back(std::move(v));
  return PageView{context.translate("Схватки"), std::move(children)}.toValue();
}

List ContractionScreen::listViews() const {
  List out;
  std::size_t next = 0;
  for (const auto& group : groups_) {
    out.push_back(SectionView{group.name}.toValue());
    List rows;
    for (int r = 0; r < group.count && next < data_.size(); ++r, ++next) {
      const health::Contraction& c = data_[next];
      const health::ContractionRowText text = health::rowText(c, app_.context());
      RowView row;
      row.id = std::string(kContractionRow) + std::to_string(c.schid);
      row.caption = text.duration;
      row.comment = text.start + " " + text.pause;
      row.deleteTarget = std::string(kContractionDelete) + std::to_string(c.schid);
      row.deleteCaption = app_.context().translate("Удалить");
      rows.push_back(row.toValue());
    }
    out.push_back(ListView{std::move(rows)}.toValue());
  }
  return out;
}

EventResult ContractionScreen::tap(std::string_view target) {
  if (target == kContractionStart) return start();
  if (target == kContractionStop) return stop();
  if (target == kContractionClose) {
    closed_ = true;
    return {};
  }
  if (target.starts_with(kContractionDelete))
    return remove(target.substr(kContractionDelete.size()));
  if (target.starts_with(kContractionRow)) return {};  // a row opens nothing
  return EventResult::refused("unknown target \"" + std::string(target) + "\"");
}

EventResult ContractionScreen::start() {
  if (timer_.running()) return EventResult::refused("a contraction is already being timed");
  const bool tickArmed = timer_.visible();  // still fading out: its tick chain goes on
  timer_.start(app_.context().clock().now());
  return tickArmed ? EventResult{} : armTick(timer_);
}

EventResult ContractionScreen::stop() {
  auto contraction = timer_.stop(app_.context().clock().now());
  if (!contraction) return EventResult::refused("no contraction is being timed");
  health::addContraction(app_.store(), *contraction, pregguid_);
  updateGraph();
  EventResult result;
  result.installationChanged = true;
  return result;
}

EventResult ContractionScreen::remove(std::string_view schid) {
  const std::int64_t id = leadingInteger(schid);
  if (std::to_string(id) != schid) return EventResult::refused("a contraction id is a number");
  if (!health::deleteContraction(app_.store(), id))
    return EventResult::refused("the contraction could not be deleted");
  updateGraph();
  EventResult result;
  result.installationChanged = true;
  return result;
}

}  // namespace lad::shell
