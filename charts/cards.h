// The small decorative cards: a rounded card and the cards of a chat thread.
#pragma once

#include "drawing/canvas.h"

namespace lad::charts {

// A rounded rectangle of radius 2s.
void drawRoundCard(drawing::Canvas& c, drawing::Rect r, drawing::Color color, double s);

// A light rounded card of radius 4s; the corners of a side without its own edge (it joins the
// next card) are squared off in white. A grey line ends the card.
void drawChatCard(drawing::Canvas& c, drawing::Rect r, bool withTop, bool withBottom, double s);

}  // namespace lad::charts
