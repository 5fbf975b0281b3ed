// The one drawing surface of the system. Charts and pages paint through it; back ends write SVG
// directly, render PNG and PDF through cairo, or keep every command for tests (recording).
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "drawing/geometry.h"
#include "drawing/path.h"

namespace lad::drawing {

enum class FillRule { Winding, EvenOdd };

class Canvas {
 public:
  virtual ~Canvas() = default;

  // Clears the rectangle to transparent.
  virtual void clear(Rect r) = 0;
  virtual void fillRect(Rect r, Color c) = 0;
  virtual void fillPath(const Path& p, Color c, FillRule rule = FillRule::Winding) = 0;
  // An empty dash list strokes a solid line; otherwise on and off lengths in turn.
  virtual void strokePath(const Path& p, Color c, double width,
                          const std::vector<double>& dash = {}) = 0;
  virtual void fillEllipse(Rect bounds, Color c) = 0;
  // Paints a linear gradient from `from` to `to` inside the area of `clip` (winding rule).
  virtual void fillGradient(const Path& clip, Point from, Point to,
                            const std::vector<GradientStop>& stops) = 0;
  // Lays the text out in the width of the rectangle from its top, breaking lines at "\n" and
  // between words, and draws it with the alignment.
  virtual void drawText(std::string_view text, Rect r, Font f, Color c, Align a) = 0;
  // Draws the text as drawText does, the whole turned by the angle (radians, clockwise on the
  // page) about the middle of the rectangle.
  virtual void drawTurnedText(std::string_view text, Rect r, Font f, Color c, Align a,
                              double angle) = 0;
  // Draws a PNG file scaled into the rectangle; a file that cannot be read draws nothing. The
  // cairo back end also reads JPEG photos.
  virtual void drawImage(const std::string& file, Rect r) = 0;
  // Draws the picture as drawImage does, showing only what lies inside the clip.
  virtual void drawClippedImage(const std::string& file, Rect r, const Path& clip) = 0;
  // Paints the shadow that an opaque picture in the rectangle casts, to be drawn under it.
  virtual void fillShadow(Rect r, Shadow s) = 0;
  // Paints the soft shadow that the path, filled by the rule, casts, to be drawn under it.
  virtual void fillPathShadow(const Path& p, FillRule rule, Shadow s) = 0;
};

}  // namespace lad::drawing
