#include "reports/book_page_image.h"

#include <cairo.h>

#include <cmath>
#include <fstream>

#include "drawing/cairo_canvas.h"
#include "platform/images.h"

namespace lad::report {

namespace {

constexpr int kBestQuality = 100;

// The pixels of the surface as RGB.
Image pixelsOf(cairo_surface_t* surface) {
  Image image;
  image.width = cairo_image_surface_get_width(surface);
  image.height = cairo_image_surface_get_height(surface);
  image.rgb.resize(std::size_t(image.width) * image.height * 3);
  const unsigned char* data = cairo_image_surface_get_data(surface);
  const int stride = cairo_image_surface_get_stride(surface);
  std::uint8_t* out = image.rgb.data();
  for (int y = 0; y < image.height; ++y) {
    const auto* row = reinterpret_cast<const std::uint32_t*>(data + std::size_t(y) * stride);
    for (int x = 0; x < image.width; ++x) {
      *out++ = static_cast<std::uint8_t>(row[x] >> 16);
      *out++ = static_cast<std::uint8_t>(row[x] >> 8);
      *out++ = static_cast<std::uint8_t>(row[x]);
    }
  }
  return image;
}

// The page's pixels, painted over white; nullopt when cairo failed.
std::optional<Image> paintPage(draw::Size size, const draw::Painter& paint) {
  cairo_surface_t* surface = cairo_image_surface_create(
      CAIRO_FORMAT_RGB24, static_cast<int>(std::ceil(size.w)), static_cast<int>(std::ceil(size.h)));
  cairo_t* cr = cairo_create(surface);
  cairo_set_source_rgb(cr, 1, 1, 1);
  cairo_paint(cr);
  {
    draw::CairoCanvas canvas(cr);
    paint(canvas);
  }
  const bool ok = cairo_status(cr) == CAIRO_STATUS_SUCCESS;
  cairo_destroy(cr);
  cairo_surface_flush(surface);
  std::optional<Image> image;
  if (ok && cairo_surface_status(surface) == CAIRO_STATUS_SUCCESS) image = pixelsOf(surface);
  cairo_surface_destroy(surface);
  return image;
}

}  // namespace

bool writePageJpeg(draw::Size size, const draw::Painter& paint, const std::filesystem::path& file,
                   std::string* error) {
  const auto image = paintPage(size, paint);
  if (!image) {
    *error = "cannot paint " + file.filename().string();
    return false;
  }
  const std::vector<std::uint8_t> jpeg = encodeJpeg(*image, kBestQuality);
  std::ofstream out(file, std::ios::binary | std::ios::trunc);
  out.write(reinterpret_cast<const char*>(jpeg.data()), static_cast<std::streamsize>(jpeg.size()));
  out.close();
  if (jpeg.empty() || !out) {
    *error = "cannot write " + file.string();
    return false;
  }
  return true;
}

}  // namespace lad::report
