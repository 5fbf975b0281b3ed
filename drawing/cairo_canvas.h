// The canvas on a cairo context; text is laid out with pango in the drawing font.
#pragma once

#include <cairo.h>
#include <pango/pango.h>

#include <list>
#include <memory>
#include <utility>

#include "drawing/canvas.h"
#include "drawing/photo_prefetch.h"

namespace lad::drawing {

class CairoCanvas : public Canvas {
 public:
  // Does not take ownership of the context.
  explicit CairoCanvas(cairo_t* cr);
  ~CairoCanvas() override;
  CairoCanvas(const CairoCanvas&) = delete;
  CairoCanvas& operator=(const CairoCanvas&) = delete;

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

  // The photos that will be drawn, in their order, with the longer side they are drawn at:
  // they are read ahead on another thread.
  void prefetch(std::vector<std::string> files, double longestSide);

 private:
  int pixelSide(double w, double h) const;
  cairo_surface_t* imageSurface(const std::string& file, Rect r);
  cairo_surface_t* readImage(const std::string& file, int side, bool print);
  void setColor(Color c);
  cairo_t* cr_;
  PangoContext* text_;  // one context for all texts of the painting
  static constexpr std::size_t kKeptImages = 16;
  std::list<std::pair<std::string, cairo_surface_t*>> images_;  // the last drawn first
  std::unique_ptr<PhotoPrefetch> prefetch_;
};

}  // namespace lad::drawing
