#include "drawing/render.h"

#include <cairo-pdf.h>

#include <cmath>

#include "drawing/cairo_canvas.h"
#include "drawing/svg_canvas.h"

namespace lad::drawing {

namespace {

cairo_status_t appendToString(void* closure, const unsigned char* data, unsigned int length) {
  static_cast<std::string*>(closure)->append(reinterpret_cast<const char*>(data), length);
  return CAIRO_STATUS_SUCCESS;
}

// Paints on the surface, finishes it and reports whether cairo met no error on the way.
bool paintOn(cairo_surface_t* surface, double scale, const Painter& paint) {
  cairo_t* cr = cairo_create(surface);
  cairo_scale(cr, scale, scale);
  CairoCanvas canvas(cr);
  paint(canvas);
  const bool ok = cairo_status(cr) == CAIRO_STATUS_SUCCESS;
  cairo_destroy(cr);
  cairo_surface_flush(surface);
  return ok;
}

bool finish(cairo_surface_t* surface, bool ok) {
  cairo_surface_finish(surface);
  ok = ok && cairo_surface_status(surface) == CAIRO_STATUS_SUCCESS;
  cairo_surface_destroy(surface);
  return ok;
}

}  // namespace

std::string renderSvg(Size size, const Painter& paint) {
  SvgCanvas canvas(size);
  paint(canvas);
  return canvas.document();
}

std::optional<std::string> renderPng(Size size, double scale, const Painter& paint) {
  const int w = static_cast<int>(std::ceil(size.w * scale));
  const int h = static_cast<int>(std::ceil(size.h * scale));
  if (w <= 0 || h <= 0) return std::nullopt;
  cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, w, h);
  bool ok = paintOn(surface, scale, paint);
  std::string out;
  ok = ok &&
       cairo_surface_write_to_png_stream(surface, appendToString, &out) == CAIRO_STATUS_SUCCESS;
  if (!finish(surface, ok)) return std::nullopt;
  return out;
}

std::optional<std::string> renderPdf(Size size, const std::string& title, const Painter& paint) {
  std::string out;
  cairo_surface_t* surface =
      cairo_pdf_surface_create_for_stream(appendToString, &out, size.w, size.h);
  cairo_pdf_surface_set_metadata(surface, CAIRO_PDF_METADATA_TITLE, title.c_str());
  cairo_pdf_surface_set_metadata(surface, CAIRO_PDF_METADATA_CREATOR, "ladaneya");
  if (!finish(surface, paintOn(surface, 1, paint))) return std::nullopt;
  return out;
}

}  // namespace lad::drawing
