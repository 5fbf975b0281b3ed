#include "shell/week/organ_ring.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "drawing/path.h"

namespace lad::shell {

namespace {

constexpr drawing::Color kTrack{0.85, 0.87, 0.9};
constexpr drawing::Color kArc{0.1098, 0.4392, 0.6706};
constexpr drawing::Color kDone{0.2, 0.65, 0.3};
constexpr drawing::Color kCaption{0.2, 0.2, 0.2};
constexpr drawing::Color kCard{1, 1, 1, 0.92};
constexpr double kTop = -std::numbers::pi / 2;

double radians(double degrees) {
  return degrees * std::numbers::pi / 180;
}

// The organ's ring at the centre: its track, its arc, and the tick when it is complete.
void drawOrgan(drawing::Canvas& c, drawing::Point at, double radius, int degrees, double line) {
  c.strokePath(drawing::Path().arc(at, radius, 0, 2 * std::numbers::pi), kTrack, line);
  if (degrees >= 360) {
    c.fillEllipse({at.x - radius, at.y - radius, 2 * radius, 2 * radius}, kDone);
    const double k = radius / 2;
    c.strokePath(drawing::Path()
                     .moveTo({at.x - k, at.y})
                     .lineTo({at.x - k / 4, at.y + k * 0.7})
                     .lineTo({at.x + k, at.y - k * 0.6}),
                 {1, 1, 1}, line);
  } else if (degrees > 0) {
    c.strokePath(drawing::Path().arc(at, radius, kTop, kTop + radians(degrees)), kArc, line);
  }
}

}  // namespace

void drawOrganRing(drawing::Canvas& c, drawing::Rect r, std::span<const OrganArc> organs,
                   double scale) {
  if (organs.empty()) return;
  // A light card under the rings keeps them readable over any theme's picture.
  c.fillPath(drawing::Path().addRoundedRect(r, 16 * scale), kCard);
  const drawing::Point centre = r.centre();
  const double side = std::min(r.w, r.h);
  const double small = side * 0.07;
  const double big = side / 2 - small * 2.3;
  const double line = 3 * scale;
  c.strokePath(drawing::Path().arc(centre, big, 0, 2 * std::numbers::pi), kTrack, scale);
  const double step = 2 * std::numbers::pi / static_cast<double>(organs.size());
  for (std::size_t i = 0; i < organs.size(); ++i) {
    const double angle = kTop + step * static_cast<double>(i);
    const drawing::Point at{centre.x + big * std::cos(angle), centre.y + big * std::sin(angle)};
    drawOrgan(c, at, small, organs[i].degrees, line);
    c.drawText(organs[i].caption,
               {at.x - small * 1.8, at.y + small + 2 * scale, small * 3.6, small},
               {9 * scale, false}, kCaption, drawing::Align::Center);
  }
}

}  // namespace lad::shell
