// Plain value types of the drawing layer: colours, points, rectangles, fonts, text alignment.
#pragma once

namespace lad::drawing {

struct Color {
  double r = 0, g = 0, b = 0, a = 1;
  Color withAlpha(double alpha) const { return {r, g, b, alpha}; }
  bool operator==(const Color&) const = default;
};

struct Point {
  double x = 0, y = 0;
  bool operator==(const Point&) const = default;
};

struct Size {
  double w = 0, h = 0;
  bool operator==(const Size&) const = default;
};

struct Rect {
  double x = 0, y = 0, w = 0, h = 0;
  double right() const { return x + w; }
  double bottom() const { return y + h; }
  Point centre() const { return {x + w / 2, y + h / 2}; }
  bool operator==(const Rect&) const = default;
};

struct Font {
  double size = 12;
  bool bold = false;
  bool operator==(const Font&) const = default;
};

enum class Align { Left, Center, Right };

// The soft shadow that a picture lying on the page casts.
struct Shadow {
  Color color;
  Point offset;
  double blur = 0;
  bool operator==(const Shadow&) const = default;
};

struct GradientStop {
  double location = 0;
  Color color;
  bool operator==(const GradientStop&) const = default;
};

}  // namespace lad::drawing
