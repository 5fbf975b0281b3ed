// Backgrounds and the colour theme each one implies: whether icons are drawn dark (the "b-"
// forms), whether headers are dark, and the colours of captions, texts, highlights and accents.
#pragma once

#include <optional>
#include <string>

#include "core/process_values.h"

namespace lad::shell {

struct Rgba {
  double r = 0, g = 0, b = 0, a = 1;
  std::string css() const;  // "rgba(r,g,b,a)" with 0-255 channels
};

struct Theme {
  bool darkIcons = false;
  bool darkHeader = false;
  Rgba caption;
  Rgba text;
  std::optional<Rgba> highlight;  // absent: the highlight stays as it was set before
  Rgba accent;
};

// The theme of a background; nullptr for an id with no theme.
const Theme* themeOf(int backgroundId);
// Sets the shared theme values for the background; an id with no theme leaves them as they are.
void correctBackground(ProcessValues& values, int backgroundId);

// The full picture, its darker form for dialogs, and its thumbnail.
std::string backgroundPicture(int backgroundId, bool dark);
std::string backgroundThumbnail(int backgroundId);

}  // namespace lad::shell
