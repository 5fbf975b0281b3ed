// A PDF of several pages written to a file: the pages go to a temporary file beside the target,
// which replaces the target only when the whole document was written, so that a failure never
// leaves a partial file under the target's name.
#pragma once

#include <cairo.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "drawing/cairo_canvas.h"

namespace lad::drawing {

class PdfDocument {
 public:
  // Pages of the size in points; the title and creator go into the document's metadata.
  PdfDocument(std::filesystem::path target, Size page, const std::string& title,
              const std::string& creator);
  ~PdfDocument();
  PdfDocument(const PdfDocument&) = delete;
  PdfDocument& operator=(const PdfDocument&) = delete;

  // The canvas of the page being drawn: y grows downwards from the page's top left corner.
  Canvas& canvas() { return *canvas_; }
  // The photos the document will draw, in their order, at the longer side given: read ahead.
  void prefetchPictures(std::vector<std::string> files, double longestSide) {
    canvas_->prefetch(std::move(files), longestSide);
  }
  // Ends the page being drawn; what is drawn next stands on a new page.
  void endPage();
  // Writes the document and puts it in place of the target. False with *error filled when any
  // step failed; the target is then as it was. Nothing can be drawn after it.
  bool finish(std::string* error);

 private:
  std::filesystem::path target_;
  std::filesystem::path temp_;
  cairo_surface_t* surface_;
  cairo_t* cr_;
  std::unique_ptr<CairoCanvas> canvas_;
  bool finished_ = false;
};

}  // namespace lad::drawing
