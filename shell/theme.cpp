#include "shell/theme.h"

#include <array>
#include <cmath>
#include <cstdio>

namespace lad::shell {

namespace {

constexpr Rgba kWhite{1, 1, 1};
constexpr Rgba kBlack{0, 0, 0};
constexpr Rgba kGold{1.0, 0.812, 0.255};
constexpr Rgba kDarkRed{0.7, 0.0, 0.0};
constexpr Rgba kPaleGold{1.0, 0.804, 0.255, 0.4};
constexpr Rgba kBlue{0.212, 0.467, 0.69};
constexpr Rgba kWine{0.537, 0.11, 0.11};

// Light text on dark pictures, and dark text on light pictures.
constexpr Theme lightOnDark(std::optional<Rgba> highlight, Rgba accent) {
  return {false, false, kGold, kWhite, highlight, accent};
}
constexpr Theme darkOnLight(std::optional<Rgba> highlight, Rgba accent) {
  return {true, true, kDarkRed, kBlack, highlight, accent};
}

const std::array<Theme, 10> kThemes{{
    {true, false, kWhite, kBlack, Rgba{0.706, 0.471, 0.0, 0.4}, Rgba{0.922, 0.749, 0.0}},
    lightOnDark(kPaleGold, kBlue),
    lightOnDark(Rgba{0.706, 0.471, 0.0}, Rgba{0.278, 0.557, 0.098}),
    darkOnLight(kPaleGold, kWine),
    lightOnDark(kPaleGold, kWine),
    lightOnDark(kPaleGold, kBlue),
    darkOnLight(std::nullopt, kWine),
    darkOnLight(std::nullopt, kBlue),
    darkOnLight(std::nullopt, kWine),
    lightOnDark(kPaleGold, kBlue),
}};

int channel(double v) {
  return static_cast<int>(std::lround(v * 255));
}

}  // namespace

std::string Rgba::css() const {
  char out[48];
  std::snprintf(out, sizeof out, "rgba(%d,%d,%d,%g)", channel(r), channel(g), channel(b), a);
  return out;
}

const Theme* themeOf(int backgroundId) {
  if (backgroundId < 1 || backgroundId > static_cast<int>(kThemes.size())) return nullptr;
  return &kThemes[backgroundId - 1];
}

void correctBackground(ProcessValues& values, int backgroundId) {
  const Theme* theme = themeOf(backgroundId);
  if (!theme) return;
  values.themeDarkIcons = theme->darkIcons;
  values.themeDarkHeader = theme->darkHeader;
  values.themeCaptionColour = theme->caption.css();
  values.themeTextColour = theme->text.css();
  if (theme->highlight) values.themeHighlightColour = theme->highlight->css();
  values.themeAccentColour = theme->accent.css();
}

std::string backgroundPicture(int backgroundId, bool dark) {
  return (dark ? "bd640-" : "bg640-") + std::to_string(backgroundId) + ".png";
}

std::string backgroundThumbnail(int backgroundId) {
  return "bs-" + std::to_string(backgroundId) + ".png";
}

}  // namespace lad::shell
