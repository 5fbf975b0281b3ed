#include "health/development_chart.h"

#include <algorithm>

#include "charts/chart.h"
#include "charts/plot_scale.h"
#include "core/context.h"
#include "core/text_fill.h"
#include "drawing/text_measure.h"
#include "health/growth_charts.h"
#include "health/growth_series.h"

namespace lad::health {

namespace {

constexpr int kFirstSizedWeek = 8, kLastSizedWeek = 40;
constexpr int kTrimesterStartDays[] = {0, 13 * 7, 26 * 7};
constexpr double kFlameW = 12, kFlameH = 16, kMarker = 16, kBalloonW = 14, kBalloonH = 18;
constexpr double kTextSize = 9;

std::string picture(const std::filesystem::path& imagesDir, const std::string& name, bool dark) {
  return (imagesDir / ((dark ? "b-" : "") + name)).string();
}

double dayX(const Map& dic, drawing::Rect frame, double s, double day) {
  return charts::getPoint(dic, frame, s, day, 0).x;
}

// The baby's weight and length at the day's week, as the today view shows them.
std::string sizeText(const Context& context, int day) {
  const int week = (day - 1) / 7;
  const WeekSize size = getVesRost(week, 1);
  return fillIn(context.translate("%.1f гр."), {formatFixed(size.ves, 1)}) + "\n" +
         fillIn(context.translate("%.1f мм."), {formatFixed(shownLength(day, size.rost), 1)});
}

// The balloon with the size beside the marker, on its left when the right has no room.
void drawBalloon(drawing::Canvas& c, drawing::Rect plot, double x, const Context& context,
                 const DevelopmentInput& in, const std::filesystem::path& imagesDir) {
  const double s = in.s;
  const std::string text = sizeText(context, in.day);
  const drawing::Font font{kTextSize * s, true};
  const drawing::Size measured = drawing::measureText(text, font);
  const double width = kBalloonW * s + 2 * s + measured.w;
  const double left = x + kMarker / 2 * s + width <= plot.right() ? x + kMarker / 2 * s
                                                                  : x - kMarker / 2 * s - width;
  const double top = plot.y + kMarker * s;
  c.drawImage(picture(imagesDir, "baloon.png", in.darkIcons),
              {left, top, kBalloonW * s, kBalloonH * s});
  const drawing::Color ink =
      in.darkIcons ? drawing::Color{0, 0, 0, 0.8} : drawing::Color{1, 1, 1, 0.9};
  c.drawText(text, {left + (kBalloonW + 2) * s, top, measured.w, measured.h}, font, ink,
             drawing::Align::Left);
}

}  // namespace

Map developmentChart(const Context& context, const DevelopmentInput& input) {
  Map dic = titleChart(context.translate("Развитие плода"), input.birthDay, input.darkIcons);
  dic.set("mainImage", "child-g.png");
  dic.set("yAxisMax", 1);  // the picture has no values; a range keeps the scale finite
  return dic;
}

void drawDevelopment(drawing::Canvas& c, drawing::Rect frame, const Context& context,
                     const DevelopmentInput& input, const std::filesystem::path& imagesDir) {
  const Map dic = developmentChart(context, input);
  charts::Chart chart(input.s, imagesDir);
  chart.prepare(dic);
  chart.drawContext(c, frame);
  const double s = input.s, lastDay = dic["xAxisMax"].doubleValue();
  const drawing::Rect plot = charts::borderedPlot(frame, s);
  for (const int start : kTrimesterStartDays) {
    if (start > lastDay) break;
    const double x = dayX(dic, frame, s, start);
    c.drawImage(picture(imagesDir, "fire.png", input.darkIcons),
                {x, plot.bottom() - kFlameH * s, kFlameW * s, kFlameH * s});
  }
  const int day = input.day - 1;  // days from the first day
  if (day < 0 || day > lastDay) return;
  const double x = dayX(dic, frame, s, day);
  c.drawImage(picture(imagesDir, "child-c.png", input.darkIcons),
              {x - kMarker / 2 * s, plot.y, kMarker * s, kMarker * s});
  const int week = day / 7;
  if (week >= kFirstSizedWeek && week <= kLastSizedWeek)
    drawBalloon(c, plot, x, context, input, imagesDir);
}

}  // namespace lad::health
