// The parts of the pregnancy wheel's picture and the marks that the wheel and its list share.
#pragma once

#include "charts/preg_graph.h"

namespace lad::charts {

// In units of the scale: the radius of a numbered week dot, and the present week's ring, which
// stands that far off the mark it rings, in that width.
inline constexpr double kWeekDotRadius = 9;
inline constexpr double kNowRingGap = 2.5;
inline constexpr double kNowRingWidth = 2;

// The green dot of a week with its number in white, paler while the week is still to come.
void drawWeekDot(drawing::Canvas& c, drawing::Point centre, int week, bool toCome, double s);
// The orange ring that marks the present week, around a mark of that radius.
void drawNowRing(drawing::Canvas& c, drawing::Point centre, double markRadius, double s);

// The wheel with its week numbers in the width of r from its top; returns its height.
double drawPregWheel(drawing::Canvas& c, drawing::Rect r, const PregGraphStyle& style);
// The list on its band in the width of r from its top, closed by the cap; returns its height.
double drawPregList(drawing::Canvas& c, drawing::Rect r, const PregGraphStyle& style);

}  // namespace lad::charts
