// The numbers that chart a pregnancy's course: the fixed curves of the baby's weight and length
// by week, the norm of the mother's weight gain by build, her own gain from the diary, and the
// ultrasound measurements.
#pragma once

#include <string>
#include <vector>

#include "core/value.h"

namespace lad {
class DateCodec;
class Store;
}  // namespace lad

namespace lad::health {

// A point of a week series: x in weeks (the charts multiply by 7 for their day axes).
struct WeekPoint {
  int week;
  double y;
  std::string label;  // empty: none
};

// The baby's weight in grams (36 points; weeks 4 to 7 are not in it).
const std::vector<WeekPoint>& fillVes();
// The baby's length in millimetres: crown to rump up to week 19, the whole body from week 20.
const std::vector<WeekPoint>& fillRost();
// The norm of the mother's gain in kilograms at weeks 0, 2, ... 42 by build (1 thin, 2 average,
// 3 heavy); nothing for any other build.
std::vector<WeekPoint> fillWomanVes(std::int64_t bodytype);

// The mother's own gain: one point per weight record from the first day of the pregnancy on.
struct GainPoint {
  Date dat;
  double value;  // kilograms above her weight before the pregnancy
};
struct OwnGain {
  std::vector<GainPoint> points;
  double largest = 0;  // the largest gain, or 0
};
// Without a weight before the pregnancy the first record is its base, so it starts at 0.
OwnGain initWomanData(Store& store, const std::string& pregguid, const Map& setup);
// Takes out the first point of that day.
void deleteVes(std::vector<GainPoint>& points, Date dat, const DateCodec& dates);

// An ultrasound measurement: its day from the first day of the pregnancy, length in
// millimetres and weight in grams, written "%.1f".
struct UltrasoundPoint {
  int day;
  std::string rost;
  std::string ves;
};
// Values that are not JSON are skipped.
std::vector<UltrasoundPoint> getUzi(Store& store, const std::string& pregguid, Date dat1);

// The baby's size at a week from the two curves (0 for a week they lack), with the marker's
// place on a picture of each curve in the screen's scale s.
struct WeekSize {
  double ves = 0, rost = 0;
  double vespzx, vespzy, vespx, vespy;
  double rostpzx, rostpzy, rostpx, rostpy;
};
WeekSize getVesRost(int week, double s);
// The length the today view shows on a day of the pregnancy: early weeks have no good value on
// the curve, and fixed ones stand in.
double shownLength(int pregnancyDay, double rost);

}  // namespace lad::health
