#include "drawing/image_size.h"

#include <cairo.h>

namespace lad::draw {

std::optional<Size> pngSize(const std::string& file) {
  cairo_surface_t* image = cairo_image_surface_create_from_png(file.c_str());
  std::optional<Size> size;
  if (cairo_surface_status(image) == CAIRO_STATUS_SUCCESS)
    size = Size{static_cast<double>(cairo_image_surface_get_width(image)),
                static_cast<double>(cairo_image_surface_get_height(image))};
  cairo_surface_destroy(image);
  return size;
}

}  // namespace lad::draw
