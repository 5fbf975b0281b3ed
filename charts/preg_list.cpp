#include <algorithm>
#include <string>
#include <vector>

#include "charts/preg_parts.h"
#include "drawing/text_measure.h"

namespace lad::charts {

namespace {

using Kind = PregListRow::Kind;

// Lengths in units of the scale.
constexpr double kBandGap = 8;    // between the wheel and the band
constexpr double kPad = 10;       // inside the band above the first row and below the cap
constexpr double kSide = 12;      // left of a header and right of every text
constexpr double kMarkX = 22;     // the centre of a row's mark from the left
constexpr double kTextX = 42;     // a row's text from the left
constexpr double kRowGap = 4;     // between rows
constexpr double kHeaderGap = 8;  // more above a header that follows rows
constexpr double kTypeDotRadius = 7;
constexpr double kCapSide = 22;

struct PlacedRow {
  const PregListRow& row;
  std::string text;
  drawing::Font font;
  drawing::Rect textBox;
  drawing::Point mark;  // the centre of the row's mark
};

// Places the rows from top down; returns the y below the last.
double placeRows(std::vector<PlacedRow>& placed, drawing::Rect r, double top,
                 const PregGraphStyle& style) {
  const double s = style.s;
  const double markHeight = 2 * (kWeekDotRadius + kNowRingGap + kNowRingWidth / 2) * s;
  double y = top;
  for (const auto& row : pregListRows()) {
    const bool header = row.kind == Kind::Header;
    if (header && !placed.empty()) y += kHeaderGap * s;
    const drawing::Font font{(header ? 17 : 12) * s, false};
    const double x = r.x + (header ? kSide : kTextX) * s;
    const double width = r.right() - kSide * s - x;
    std::string text = style.translator.translate(row.text);
    const drawing::Size size = drawing::measureText(text, font, width);
    const double height = header ? size.h : std::max(size.h, markHeight);
    placed.push_back({row,
                      std::move(text),
                      font,
                      {x, y + (height - size.h) / 2, width, size.h},
                      {r.x + kMarkX * s, y + height / 2}});
    y += height + kRowGap * s;
  }
  return y;
}

void drawMark(drawing::Canvas& c, const PlacedRow& p, const PregGraphStyle& style) {
  const double s = style.s;
  if (p.row.kind == Kind::Week) {
    drawWeekDot(c, p.mark, p.row.test, p.row.test > style.curweek, s);
    if (rowHolds(p.row, style.curweek)) drawNowRing(c, p.mark, kWeekDotRadius * s, s);
    return;
  }
  const double r = kTypeDotRadius * s;
  c.fillEllipse({p.mark.x - r, p.mark.y - r, 2 * r, 2 * r}, p.row.color);
  if (rowHolds(p.row, style.curweek)) drawNowRing(c, p.mark, r, s);
}

void drawRow(drawing::Canvas& c, const PlacedRow& p, const PregGraphStyle& style) {
  double alpha = 0.8;
  if (p.row.kind != Kind::Header) {
    drawMark(c, p, style);
    alpha = rowHolds(p.row, style.curweek) ? 1 : 0.6;
  }
  c.drawText(p.text, p.textBox, p.font, style.textColor.withAlpha(alpha), drawing::Align::Left);
}

}  // namespace

double drawPregList(drawing::Canvas& c, drawing::Rect r, const PregGraphStyle& style) {
  const double s = style.s;
  const double bandTop = r.y + kBandGap * s;
  std::vector<PlacedRow> placed;
  const double capTop = placeRows(placed, r, bandTop + kPad * s, style);
  const double bandBottom = capTop + (kCapSide + kPad) * s;
  const drawing::Color band =
      style.darkHeader ? drawing::Color{0, 0, 0, 0.1} : drawing::Color{1, 1, 1, 0.3};
  c.fillRect({r.x, bandTop, r.w, bandBottom - bandTop}, band);
  for (const auto& p : placed) drawRow(c, p, style);
  const double cap = kCapSide * s;
  c.drawImage((style.imagesDir / "cap-down.png").string(),
              {r.x + (r.w - cap) / 2, capTop, cap, cap});
  return bandBottom - r.y;
}

}  // namespace lad::charts
