// A chart object: it keeps what it was prepared with and paints it on request, on screen (SVG)
// or into an image.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "core/value.h"
#include "drawing/canvas.h"

namespace lad::charts {

class Chart {
 public:
  enum class Mode {
    None = 0,
    RoundCard = 4,
    Graph = 7,
    ChatCard = 8,
    ChatCardNoTop = 9,
    ChatCardNoBottom = 10
  };

  // s: the device scale; pictures are read from imagesDir.
  Chart(double s, std::filesystem::path imagesDir) : s_(s), imagesDir_(std::move(imagesDir)) {}

  // Keeps a copy of the chart dictionary and paints it from now on.
  void prepare(Map dic);
  void prepareRoundCard();
  void prepareChatCard(bool withTop, bool withBottom);

  Mode mode() const { return mode_; }
  const Map& dictionary() const { return dic_; }

  // Paints the present mode into the rectangle.
  void drawContext(drawing::Canvas& c, drawing::Rect r) const;
  std::string svg(drawing::Size size) const;
  // A PNG bitmap of the size at the render scale; nullopt when it cannot be made.
  std::optional<std::string> getContextImage(drawing::Size size, double scale) const;

 private:
  double s_;
  std::filesystem::path imagesDir_;
  Mode mode_ = Mode::None;
  Map dic_;
  drawing::Color backColor_;
};

}  // namespace lad::charts
