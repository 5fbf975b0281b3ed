#include "drawing/pdf_document.h"

#include <cairo-pdf.h>

#include "core/atomic_file.h"

namespace lad::drawing {

PdfDocument::PdfDocument(std::filesystem::path target, Size page, const std::string& title,
                         const std::string& creator)
    : target_(std::move(target)),
      temp_(atomicTempPath(target_)),
      surface_(cairo_pdf_surface_create(temp_.c_str(), page.w, page.h)),
      cr_(cairo_create(surface_)),
      canvas_(std::make_unique<CairoCanvas>(cr_)) {
  cairo_pdf_surface_set_metadata(surface_, CAIRO_PDF_METADATA_TITLE, title.c_str());
  cairo_pdf_surface_set_metadata(surface_, CAIRO_PDF_METADATA_CREATOR, creator.c_str());
}

PdfDocument::~PdfDocument() {
  if (!finished_) finish(nullptr);
}

void PdfDocument::endPage() {
  cairo_show_page(cr_);
}

bool PdfDocument::finish(std::string* error) {
  if (finished_) return false;
  finished_ = true;
  canvas_.reset();
  cairo_status_t status = cairo_status(cr_);
  cairo_destroy(cr_);
  cairo_surface_finish(surface_);
  if (status == CAIRO_STATUS_SUCCESS) status = cairo_surface_status(surface_);
  cairo_surface_destroy(surface_);
  const bool ok = status == CAIRO_STATUS_SUCCESS;
  std::error_code failure;
  if (ok) std::filesystem::rename(temp_, target_, failure);
  if (ok && !failure) return true;
  if (error)
    *error = "cannot write " + target_.string() + ": " +
             (failure ? failure.message() : cairo_status_to_string(status));
  std::filesystem::remove(temp_, failure);
  return false;
}

}  // namespace lad::drawing
