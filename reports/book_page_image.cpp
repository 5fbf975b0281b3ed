#include "reports/book_page_image.h"

#include <cmath>
#include <fstream>

#include "drawing/cairo_canvas.h"
#include "platform/images.h"

namespace lad::reports {

namespace {

constexpr int kBestQuality = 100;

}  // namespace

PageRaster::PageRaster(drawing::Size size)
    : surface_(cairo_image_surface_create(CAIRO_FORMAT_RGB24, static_cast<int>(std::ceil(size.w)),
                                          static_cast<int>(std::ceil(size.h)))) {}

PageRaster::~PageRaster() {
  cairo_surface_destroy(surface_);
}

bool PageRaster::write(const drawing::Painter& paint, const std::filesystem::path& file,
                       std::string* error) const {
  cairo_t* cr = cairo_create(surface_);
  {
    drawing::CairoCanvas canvas(cr);
    paint(canvas);
  }
  const bool painted = cairo_status(cr) == CAIRO_STATUS_SUCCESS;
  cairo_destroy(cr);
  cairo_surface_flush(surface_);
  std::vector<std::uint8_t> jpeg;
  if (painted && cairo_surface_status(surface_) == CAIRO_STATUS_SUCCESS)
    jpeg = platform::encodeJpegFromWords(
        cairo_image_surface_get_data(surface_), cairo_image_surface_get_width(surface_),
        cairo_image_surface_get_height(surface_),
        static_cast<std::size_t>(cairo_image_surface_get_stride(surface_)), kBestQuality);
  if (jpeg.empty()) {
    *error = "cannot paint " + file.filename().string();
    return false;
  }
  std::ofstream out(file, std::ios::binary | std::ios::trunc);
  out.write(reinterpret_cast<const char*>(jpeg.data()), static_cast<std::streamsize>(jpeg.size()));
  out.close();
  if (!out) {
    *error = "cannot write " + file.string();
    return false;
  }
  return true;
}

}  // namespace lad::reports
