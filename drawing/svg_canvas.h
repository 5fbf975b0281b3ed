// The canvas that writes SVG elements straight into a document. Text stays text, in the font
// that the browser is served, broken into lines where the cairo back end breaks it.
#pragma once

#include <cstdint>
#include <string>

#include "drawing/canvas.h"

namespace lad::drawing {

class SvgCanvas : public Canvas {
 public:
  // The document is size.w × size.h units.
  explicit SvgCanvas(Size size);

  void clear(Rect r) override;
  void fillRect(Rect r, Color c) override;
  void fillPath(const Path& p, Color c, FillRule rule) override;
  void strokePath(const Path& p, Color c, double width, const std::vector<double>& dash) override;
  void fillEllipse(Rect bounds, Color c) override;
  void fillGradient(const Path& clip, Point from, Point to,
                    const std::vector<GradientStop>& stops) override;
  void drawText(std::string_view text, Rect r, Font f, Color c, Align a) override;
  void drawTurnedText(std::string_view text, Rect r, Font f, Color c, Align a,
                      double angle) override;
  void drawImage(const std::string& file, Rect r) override;
  void drawClippedImage(const std::string& file, Rect r, const Path& clip) override;
  void fillShadow(Rect r, Shadow s) override;
  void fillPathShadow(const Path& p, FillRule rule, Shadow s) override;

  // The whole document of what has been painted so far.
  std::string document() const;

 private:
  std::string nextId(char kind);
  std::string blurFilter(double blur);

  Size size_;
  std::string defs_;
  std::string body_;
  std::uint64_t ids_ = 0;
};

}  // namespace lad::drawing
