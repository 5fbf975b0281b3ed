// The two series of the contraction counter, intervals between contractions and their
// durations, and the chart dictionaries that show them.
#pragma once

#include <vector>

#include "core/value.h"
#include "health/contraction.h"

namespace lad::health {

// Chart points: x the 1-based place in the series, y in seconds, label y as "mm:ss". A pause of
// more than an hour empties both series: only the contractions after it are analysed.
struct ContractionSeries {
  List intervals;
  List durations;
};

ContractionSeries buildSeries(const std::vector<Contraction>& contractions);

// The chart dictionary of one series with its axes scaled to the points: y from a tenth below
// the smallest value (not under 0) to a tenth above the largest, x from 0 to count + 1.
Map contractionChart(const List& points, const std::string& bottomCaption, bool darkIcons);

}  // namespace lad::health
