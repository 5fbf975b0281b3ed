// The chart dictionary that callers fill and hand to a chart: its defaults and its builders.
#pragma once

#include <string>

#include "core/value.h"

namespace lad::charts {

// Sets the axis limits to 0, `setka` to false and `bottomLine` to 0.
void initGraphDic(Map& dic);

// Appends a point with x, y and, when given, its label.
void addPoint(List& series, double x, double y, const std::string& label = {});

// Appends a legend row.
void addToLegenda(List& legend, const std::string& caption, int pos, bool checked);

}  // namespace lad::charts
