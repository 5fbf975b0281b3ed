#include "reports/book_pdf.h"

#include <cairo-pdf.h>

#include "core/atomic_file.h"
#include "platform/images.h"

namespace lad::reports {

namespace {

void freeBytes(void* bytes) {
  delete static_cast<std::string*>(bytes);
}

// Puts the JPEG on a page of its size. The PDF keeps the JPEG's own bytes: the picture is
// never decoded, and the surface that stands for it is never painted, so it takes no memory.
bool addPage(cairo_surface_t* pdf, cairo_t* cr, const std::filesystem::path& file,
             std::string* error) {
  auto jpeg = std::make_unique<std::string>();
  if (auto bytes = readWholeFile(file)) *jpeg = std::move(*bytes);
  const auto size = platform::imageSize(
      std::span(reinterpret_cast<const std::uint8_t*>(jpeg->data()), jpeg->size()));
  if (!size || size->width <= 0 || size->height <= 0) {
    *error = "cannot read " + file.string();
    return false;
  }
  const double w = size->width / kPixelsPerPoint, h = size->height / kPixelsPerPoint;
  cairo_pdf_surface_set_size(pdf, w, h);
  cairo_surface_t* image =
      cairo_image_surface_create(CAIRO_FORMAT_RGB24, size->width, size->height);
  std::string* bytes = jpeg.release();
  cairo_surface_set_mime_data(image, CAIRO_MIME_TYPE_JPEG,
                              reinterpret_cast<const unsigned char*>(bytes->data()), bytes->size(),
                              freeBytes, bytes);
  cairo_save(cr);
  cairo_scale(cr, w / size->width, h / size->height);
  cairo_set_source_surface(cr, image, 0, 0);
  cairo_paint(cr);
  cairo_restore(cr);
  cairo_surface_destroy(image);
  cairo_show_page(cr);
  return true;
}

}  // namespace

bool saveBook(const std::vector<std::filesystem::path>& pages, const std::filesystem::path& target,
              const std::string& creator, std::string* error) {
  const std::filesystem::path temp = atomicTempPath(target);
  cairo_surface_t* pdf = cairo_pdf_surface_create(temp.c_str(), 1, 1);
  cairo_pdf_surface_set_metadata(pdf, CAIRO_PDF_METADATA_CREATOR, creator.c_str());
  cairo_t* cr = cairo_create(pdf);
  bool ok = !pages.empty();
  if (!ok) *error = "the book has no pages";
  for (std::size_t i = 0; ok && i < pages.size(); ++i) ok = addPage(pdf, cr, pages[i], error);
  const cairo_status_t drawn = cairo_status(cr);
  cairo_destroy(cr);
  cairo_surface_finish(pdf);
  const cairo_status_t written = cairo_surface_status(pdf);
  cairo_surface_destroy(pdf);
  if (ok && (drawn != CAIRO_STATUS_SUCCESS || written != CAIRO_STATUS_SUCCESS)) {
    *error = "cannot write " + target.string() + ": " +
             cairo_status_to_string(drawn != CAIRO_STATUS_SUCCESS ? drawn : written);
    ok = false;
  }
  std::error_code failure;
  if (ok) std::filesystem::rename(temp, target, failure);
  if (ok && failure) {
    *error = "cannot write " + target.string() + ": " + failure.message();
    ok = false;
  }
  if (!ok) std::filesystem::remove(temp, failure);
  return ok;
}

}  // namespace lad::reports
