#include "drawing/cairo_canvas.h"

#include <pango/pangocairo.h>

#include <algorithm>
#include <cmath>

#include "core/atomic_file.h"
#include "drawing/cairo_path.h"
#include "drawing/cairo_shadow.h"
#include "drawing/text_layout.h"
#include "platform/images.h"

namespace lad::drawing {

namespace {

// PDF pages are printed: a picture there keeps two pixels for each unit of the page.
constexpr double kPrintPixelsPerUnit = 2;

bool isJpeg(std::span<const std::uint8_t> bytes) {
  return bytes.size() > 3 && bytes[0] == 0xFF && bytes[1] == 0xD8 && bytes[2] == 0xFF;
}

cairo_surface_t* surfaceOf(const platform::Image& image) {
  cairo_surface_t* surface =
      cairo_image_surface_create(CAIRO_FORMAT_RGB24, image.width, image.height);
  cairo_surface_flush(surface);
  unsigned char* data = cairo_image_surface_get_data(surface);
  const int stride = cairo_image_surface_get_stride(surface);
  for (int y = 0; y < image.height; ++y) {
    auto* row = reinterpret_cast<std::uint32_t*>(data + std::size_t(y) * stride);
    const std::uint8_t* rgb = image.rgb.data() + std::size_t(y) * image.width * 3;
    for (int x = 0; x < image.width; ++x, rgb += 3)
      row[x] = 0xFF000000u | std::uint32_t(rgb[0]) << 16 | std::uint32_t(rgb[1]) << 8 | rgb[2];
  }
  cairo_surface_mark_dirty(surface);
  return surface;
}

bool isPrint(cairo_t* cr) {
  return cairo_surface_get_type(cairo_get_target(cr)) == CAIRO_SURFACE_TYPE_PDF;
}

void freeBytes(void* bytes) {
  delete static_cast<std::vector<std::uint8_t>*>(bytes);
}

// A PDF keeps the picture as a JPEG rather than as deflated pixels: smaller and much faster.
void attachJpeg(cairo_surface_t* surface, std::vector<std::uint8_t> bytes) {
  auto* jpeg = new std::vector<std::uint8_t>(std::move(bytes));
  if (jpeg->empty() ||
      cairo_surface_set_mime_data(surface, CAIRO_MIME_TYPE_JPEG, jpeg->data(), jpeg->size(),
                                  freeBytes, jpeg) != CAIRO_STATUS_SUCCESS)
    delete jpeg;
}

}  // namespace

CairoCanvas::CairoCanvas(cairo_t* cr) : cr_(cr), text_(pango_cairo_create_context(cr)) {
  prepareTextContext(text_);
}

CairoCanvas::~CairoCanvas() {
  for (const auto& kept : images_) cairo_surface_destroy(kept.second);
  g_object_unref(text_);
}

void CairoCanvas::setColor(Color c) {
  cairo_set_source_rgba(cr_, c.r, c.g, c.b, c.a);
}

void CairoCanvas::clear(Rect r) {
  cairo_save(cr_);
  cairo_set_operator(cr_, CAIRO_OPERATOR_CLEAR);
  cairo_rectangle(cr_, r.x, r.y, r.w, r.h);
  cairo_fill(cr_);
  cairo_restore(cr_);
}

void CairoCanvas::fillRect(Rect r, Color c) {
  setColor(c);
  cairo_rectangle(cr_, r.x, r.y, r.w, r.h);
  cairo_fill(cr_);
}

void CairoCanvas::fillPath(const Path& p, Color c, FillRule rule) {
  setCairoPath(cr_, p);
  setColor(c);
  cairo_set_fill_rule(cr_, cairoFillRule(rule));
  cairo_fill(cr_);
  cairo_set_fill_rule(cr_, CAIRO_FILL_RULE_WINDING);
}

void CairoCanvas::strokePath(const Path& p, Color c, double width,
                             const std::vector<double>& dash) {
  setCairoPath(cr_, p);
  setColor(c);
  cairo_set_line_width(cr_, width);
  cairo_set_dash(cr_, dash.data(), static_cast<int>(dash.size()), 0);
  cairo_stroke(cr_);
  cairo_set_dash(cr_, nullptr, 0, 0);
}

void CairoCanvas::fillEllipse(Rect bounds, Color c) {
  if (bounds.w <= 0 || bounds.h <= 0) return;
  cairo_save(cr_);
  cairo_translate(cr_, bounds.x + bounds.w / 2, bounds.y + bounds.h / 2);
  cairo_scale(cr_, bounds.w / 2, bounds.h / 2);
  cairo_new_path(cr_);
  cairo_arc(cr_, 0, 0, 1, 0, 2 * G_PI);
  cairo_restore(cr_);
  setColor(c);
  cairo_fill(cr_);
}

void CairoCanvas::fillGradient(const Path& clip, Point from, Point to,
                               const std::vector<GradientStop>& stops) {
  cairo_pattern_t* pattern = cairo_pattern_create_linear(from.x, from.y, to.x, to.y);
  for (const auto& s : stops)
    cairo_pattern_add_color_stop_rgba(pattern, s.location, s.color.r, s.color.g, s.color.b,
                                      s.color.a);
  setCairoPath(cr_, clip);
  cairo_set_source(cr_, pattern);
  cairo_fill(cr_);
  cairo_pattern_destroy(pattern);
}

void CairoCanvas::drawText(std::string_view text, Rect r, Font f, Color c, Align a) {
  PangoLayout* layout = makeLayout(text_, text, f, r.w, a);
  setColor(c);
  cairo_move_to(cr_, r.x, r.y);
  pango_cairo_show_layout(cr_, layout);
  g_object_unref(layout);
}

void CairoCanvas::drawTurnedText(std::string_view text, Rect r, Font f, Color c, Align a,
                                 double angle) {
  const Point middle = r.centre();
  cairo_save(cr_);
  cairo_translate(cr_, middle.x, middle.y);
  cairo_rotate(cr_, angle);
  cairo_translate(cr_, -middle.x, -middle.y);
  drawText(text, r, f, c, a);
  cairo_restore(cr_);
}

void CairoCanvas::drawClippedImage(const std::string& file, Rect r, const Path& clip) {
  cairo_save(cr_);
  setCairoPath(cr_, clip);
  cairo_clip(cr_);
  drawImage(file, r);
  cairo_restore(cr_);
}

void CairoCanvas::drawImage(const std::string& file, Rect r) {
  if (r.w <= 0 || r.h <= 0) return;
  cairo_surface_t* image = imageSurface(file, r);
  if (!image) return;
  const int w = cairo_image_surface_get_width(image);
  const int h = cairo_image_surface_get_height(image);
  cairo_save(cr_);
  cairo_translate(cr_, r.x, r.y);
  cairo_scale(cr_, r.w / w, r.h / h);
  cairo_set_source_surface(cr_, image, 0, 0);
  cairo_pattern_set_filter(cairo_get_source(cr_), CAIRO_FILTER_GOOD);
  cairo_paint(cr_);
  cairo_restore(cr_);
}

// The pixels of the longer side of a picture drawn w by h, more for print.
int CairoCanvas::pixelSide(double w, double h) const {
  cairo_user_to_device_distance(cr_, &w, &h);
  return static_cast<int>(
      std::ceil(std::max(std::abs(w), std::abs(h)) * (isPrint(cr_) ? kPrintPixelsPerUnit : 1)));
}

void CairoCanvas::prefetch(std::vector<std::string> files, double longestSide) {
  prefetch_.reset();
  prefetch_ = std::make_unique<PhotoPrefetch>(std::move(files), pixelSide(longestSide, 0));
}

// The pictures drawn last stay at hand: icons and page frames come again and again, and a PDF
// keeps a picture that is drawn on many pages only once when it is the same surface.
cairo_surface_t* CairoCanvas::imageSurface(const std::string& file, Rect r) {
  const bool print = isPrint(cr_);
  const int side = pixelSide(r.w, r.h);
  const std::string key = file + "@" + std::to_string(side);
  for (auto it = images_.begin(); it != images_.end(); ++it)
    if (it->first == key) {
      images_.splice(images_.begin(), images_, it);
      return images_.front().second;
    }
  cairo_surface_t* image = readImage(file, side, print);
  if (!image) return nullptr;
  images_.emplace_front(key, image);
  if (images_.size() > kKeptImages) {
    cairo_surface_destroy(images_.back().second);
    images_.pop_back();
  }
  return image;
}

// A photo is read no larger than the pixels it takes on the surface.
cairo_surface_t* CairoCanvas::readImage(const std::string& file, int side, bool print) {
  if (prefetch_)
    if (auto photo = prefetch_->take(file, side)) {
      cairo_surface_t* surface = surfaceOf(photo->image);
      if (print) attachJpeg(surface, std::move(photo->jpeg));
      return surface;
    }
  const auto bytes = readWholeFile(file);
  if (!bytes) return nullptr;
  const std::span<const std::uint8_t> data(reinterpret_cast<const std::uint8_t*>(bytes->data()),
                                           bytes->size());
  if (!isJpeg(data)) {
    cairo_surface_t* png = cairo_image_surface_create_from_png(file.c_str());
    if (cairo_surface_status(png) == CAIRO_STATUS_SUCCESS &&
        cairo_image_surface_get_width(png) > 0 && cairo_image_surface_get_height(png) > 0)
      return png;
    cairo_surface_destroy(png);
    return nullptr;
  }
  const auto image = platform::decodeImageToFit(data, side, nullptr);
  if (!image || image->width <= 0 || image->height <= 0) return nullptr;
  cairo_surface_t* surface = surfaceOf(*image);
  if (print) attachJpeg(surface, platform::encodeJpeg(*image, kPrintJpegQuality));
  return surface;
}

// Layers of the box, from blur wider to blur narrower, each adding to the colour, so that the
// shadow is full inside and fades over twice the blur at its edges; vector only, so it stays
// small in a PDF.
void CairoCanvas::fillShadow(Rect r, Shadow s) {
  constexpr int kLayers = 8;
  const double layerAlpha = 1 - std::pow(1 - s.color.a, 1.0 / kLayers);
  setColor(s.color.withAlpha(layerAlpha));
  for (int k = 0; k < kLayers; ++k) {
    const double grow = s.blur * (1 - 2.0 * k / (kLayers - 1));
    cairo_rectangle(cr_, r.x + s.offset.x - grow, r.y + s.offset.y - grow, r.w + 2 * grow,
                    r.h + 2 * grow);
    cairo_fill(cr_);
  }
}

void CairoCanvas::fillPathShadow(const Path& p, FillRule rule, Shadow s) {
  paintPathShadow(cr_, p, rule, s);
}

}  // namespace lad::drawing
