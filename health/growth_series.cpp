#include "health/growth_series.h"

#include <algorithm>
#include <cstdio>

#include "core/context.h"
#include "core/json_text.h"
#include "core/value.h"
#include "store/day_loader.h"
#include "store/store.h"

namespace lad::health {

namespace {

constexpr int kWeightRegim = 3;

std::string oneDecimal(double v) {
  char text[32];
  std::snprintf(text, sizeof text, "%.1f", v);
  return text;
}

// Weeks 3 and 8 to 42; the weeks between are not measured.
std::vector<WeekPoint> weekCurve(double at3, std::initializer_list<std::pair<double, bool>> from8) {
  std::vector<WeekPoint> points{{3, at3, oneDecimal(at3)}};
  int week = 8;
  for (const auto& [y, labelled] : from8)
    points.push_back({week++, y, labelled ? oneDecimal(y) : ""});
  return points;
}

// The norm's row of a build, from week 0 to week 42 by two weeks. Every fourth week from 4 to 40
// carries its value as a label.
const std::vector<double>* normRow(std::int64_t bodytype) {
  static const std::vector<double> heavy{0.0, 0.5, 0.5, 0.6, 0.7, 0.8, 0.9, 1.0, 1.4, 2.3, 2.9,
                                         3.4, 3.9, 5.0, 5.4, 5.9, 6.4, 7.3, 7.9, 8.6, 9.1, 9.4};
  static const std::vector<double> average{0.0,  0.5,  0.7,  1.0,  1.2,  1.3, 1.5, 1.9,
                                           2.3,  3.6,  4.8,  5.7,  6.4,  7.7, 8.2, 9.1,
                                           10.0, 10.9, 11.8, 12.7, 13.6, 14.2};
  static const std::vector<double> thin{0.0,  0.5,  0.9,  1.4,  1.6,  1.8, 2.0, 2.7,
                                        3.2,  4.5,  5.4,  6.8,  7.7,  8.6, 9.8, 10.2,
                                        11.3, 12.5, 13.6, 14.5, 15.2, 15.7};
  switch (bodytype) {
    case 1:
      return &thin;
    case 2:
      return &average;
    case 3:
      return &heavy;
    default:
      return nullptr;
  }
}

double yAtWeek(const std::vector<WeekPoint>& curve, int week) {
  const auto at = std::ranges::find(curve, week, &WeekPoint::week);
  return at == curve.end() ? 0 : at->y;
}

}  // namespace

const std::vector<WeekPoint>& fillVes() {
  static const std::vector<WeekPoint> curve = weekCurve(
      0.0,
      {{1.0, true},    {2, false},    {4, false},     {7.0, true},    {14, false},   {23, false},
       {43.0, true},   {70, false},   {100, false},   {140.0, true},  {190, false},  {240, false},
       {300.0, true},  {360, false},  {430, false},   {501.0, true},  {600, false},  {660, false},
       {760.0, true},  {875, false},  {1005, false},  {1153.0, true}, {1319, false}, {1502, false},
       {1702.0, true}, {1918, false}, {2146, false},  {2383.0, true}, {2622, false}, {2859, false},
       {3083.0, true}, {3288, false}, {3462.0, true}, {3562, false},  {3630, false}});
  return curve;
}

const std::vector<WeekPoint>& fillRost() {
  static const std::vector<WeekPoint> curve = weekCurve(
      0.0, {{16, false},  {23, false},  {31.0, true},  {41, false},  {54, false},  {74.0, true},
            {87, false},  {101, false}, {116.0, true}, {130, false}, {142, false}, {153.0, true},
            {256, false}, {267, false}, {278.0, true}, {289, false}, {300, false}, {346.0, true},
            {356, false}, {366, false}, {376.0, true}, {386, false}, {399, false}, {411.0, true},
            {424, false}, {437, false}, {450.0, true}, {462, false}, {474, false}, {486.0, true},
            {498, false}, {507, false}, {512.0, true}, {517, false}, {521, false}});
  return curve;
}

std::vector<WeekPoint> fillWomanVes(std::int64_t bodytype) {
  std::vector<WeekPoint> points;
  const std::vector<double>* row = normRow(bodytype);
  if (!row) return points;
  for (std::size_t i = 0; i < row->size(); ++i) {
    const int week = static_cast<int>(2 * i);
    const bool labelled = i % 2 == 0 && week > 0 && week <= 40;
    points.push_back({week, (*row)[i], labelled ? oneDecimal((*row)[i]) : ""});
  }
  return points;
}

OwnGain initWomanData(Store& store, const std::string& pregguid, const Map& setup) {
  OwnGain gain;
  double base = leadingDouble(setup["ves"].text());
  const auto dat1 = setup["dat1"].asDate();
  if (!dat1) return gain;
  for (const Value& day : loadNoteData(store, kWeightRegim, 0, *dat1, pregguid)) {
    const auto dat = day["dat"].asDate();
    if (!dat) continue;
    // The day model reads a damaged weight as 0: no weight at all, so it is left out.
    const double weight = leadingDouble(day["ves"].text());
    if (weight <= 0) continue;
    if (gain.points.empty() && base == 0) base = weight;
    gain.points.push_back({*dat, weight - base});
    gain.largest = std::max(gain.largest, weight - base);
  }
  return gain;
}

void deleteVes(std::vector<GainPoint>& points, Date dat, const DateCodec& dates) {
  const std::string wanted = dates.dateToString(dat, "dd MMMM yyyy");
  const auto first = std::ranges::find_if(points, [&](const GainPoint& p) {
    return dates.dateToString(p.dat, "dd MMMM yyyy") == wanted;
  });
  if (first != points.end()) points.erase(first);
}

std::vector<UltrasoundPoint> getUzi(Store& store, const std::string& pregguid, Date dat1) {
  std::vector<UltrasoundPoint> points;
  StoreBracket bracket = store.connectToBase();
  if (!bracket.db()) return points;
  auto q = bracket.db()->prepare(
      "select sdat, value from pregdata where pregguid=? and type='uzi' and value<>'<tr>' "
      "order by dat");
  q.bindText(1, pregguid);
  const DateCodec& dates = store.context().dates();
  while (q.step()) {
    const std::string value = q.columnText(1).value_or("");
    const auto day = dates.dateFromStringFormat(q.columnText(0).value_or(""), "yyyy-MM-dd");
    if (!jsonIs(value) || !day) continue;
    const Value object = jsonToArray(value);
    points.push_back({dates.getDays(dat1, *day),
                      oneDecimal(leadingDouble(object["rost"].text()) * 10),
                      oneDecimal(leadingDouble(object["ves"].text()) * 1000)});
  }
  return points;
}

WeekSize getVesRost(int week, double s) {
  WeekSize size;
  size.ves = yAtWeek(fillVes(), week);
  size.rost = yAtWeek(fillRost(), week);
  const bool vesFound = std::ranges::find(fillVes(), week, &WeekPoint::week) != fillVes().end();
  const bool rostFound = std::ranges::find(fillRost(), week, &WeekPoint::week) != fillRost().end();
  const double x = 15 * s + 290 * s / 40 * week;
  size.vespzx = size.rostpzx = 15 * s;
  size.vespzy = 345 * s;
  size.rostpzy = 215 * s;
  size.vespx = vesFound ? x : 15 * s;
  size.vespy = 345 * s + (vesFound ? size.ves * 90 * s / -3500 : 0);
  size.rostpx = rostFound ? x : 15 * s;
  size.rostpy = 215 * s + (rostFound ? size.rost * 90 * s / -550 : 0);
  return size;
}

double shownLength(int pregnancyDay, double rost) {
  if (pregnancyDay >= 29 && pregnancyDay <= 42) return 2;
  if (pregnancyDay >= 43 && pregnancyDay <= 56) return 5;
  if (pregnancyDay >= 57 && pregnancyDay <= 63) return 14;
  return rost;
}

}  // namespace lad::health
