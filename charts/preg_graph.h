// The wheel of a pregnancy's forty weeks: one ring for each change or complaint, coloured in the
// weeks it belongs to, the week numbers around it, and below it the list of those changes and
// complaints with the ones of the present week marked.
#pragma once

#include <filesystem>
#include <span>
#include <string_view>

#include "core/translation.h"
#include "drawing/canvas.h"

namespace lad::charts {

// Whether the change or complaint of the type (1 to 12) belongs to the week.
bool isWomanTypeInWeek(int week, int type);

// One row of the list under the wheel.
struct PregListRow {
  enum class Kind { Header, Week, Type };
  Kind kind = Kind::Header;
  std::string_view text;
  int test = 0;          // the week of a week row, the type of a type row
  drawing::Color color;  // the dot of a type row
};

// The rows in the order shown.
std::span<const PregListRow> pregListRows();
// Whether the row's test holds in the week; a header's never does.
bool rowHolds(const PregListRow& row, int week);

struct PregGraphStyle {
  const Translator& translator;
  int curweek = 0;  // the present week of the pregnancy
  double s = 1;     // the screen's scale
  drawing::Color textColor;
  bool darkHeader = true;  // the theme's header is dark
  std::filesystem::path imagesDir;
};

// Paints the wheel and the list into the width of r from its top; returns the height used.
double drawWomanChart(drawing::Canvas& c, drawing::Rect r, const PregGraphStyle& style);

}  // namespace lad::charts
