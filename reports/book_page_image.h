// A page of the photo book as a picture: painted at one pixel a unit and written as a JPEG of
// the best quality. Only one page's pixels are in memory; the pages of one size are painted on
// the same pixels in turn.
#pragma once

#include <cairo.h>

#include <filesystem>
#include <string>

#include "drawing/render.h"

namespace lad::reports {

class PageRaster {
 public:
  explicit PageRaster(drawing::Size size);
  ~PageRaster();
  PageRaster(const PageRaster&) = delete;
  PageRaster& operator=(const PageRaster&) = delete;

  // Paints the page, which the painter covers whole, and writes it to the file in place of an
  // old one; false with *error filled when it could not be painted or written.
  bool write(const drawing::Painter& paint, const std::filesystem::path& file,
             std::string* error) const;

 private:
  cairo_surface_t* surface_;
};

}  // namespace lad::reports
