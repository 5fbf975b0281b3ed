#include "drawing/cairo_shadow.h"

#include <algorithm>
#include <cmath>

#include "drawing/alpha_blur.h"
#include "drawing/cairo_path.h"

namespace lad::drawing {

namespace {

struct PixelBox {
  int x0, y0, x1, y1;
  int w() const { return x1 - x0; }
  int h() const { return y1 - y0; }
};

// The device pixels that the user-space box covers, grown by pad on every side.
PixelBox deviceBox(cairo_t* cr, double x0, double y0, double x1, double y1, int pad) {
  double xs[] = {x0, x1, x0, x1}, ys[] = {y0, y0, y1, y1};
  for (int i = 0; i < 4; ++i) cairo_user_to_device(cr, &xs[i], &ys[i]);
  const auto [xmin, xmax] = std::minmax_element(std::begin(xs), std::end(xs));
  const auto [ymin, ymax] = std::minmax_element(std::begin(ys), std::end(ys));
  return {static_cast<int>(std::floor(*xmin)) - pad, static_cast<int>(std::floor(*ymin)) - pad,
          static_cast<int>(std::ceil(*xmax)) + pad, static_cast<int>(std::ceil(*ymax)) + pad};
}

// The shadow's pixels that can show: the path's box grown by the blur, within the clip grown by
// the blur (a shadow from outside the clip may still reach into it).
PixelBox shadowBox(cairo_t* cr, int pad) {
  double x0, y0, x1, y1;
  cairo_fill_extents(cr, &x0, &y0, &x1, &y1);
  PixelBox box = deviceBox(cr, x0, y0, x1, y1, pad);
  cairo_clip_extents(cr, &x0, &y0, &x1, &y1);
  const PixelBox clip = deviceBox(cr, x0, y0, x1, y1, pad);
  return {std::max(box.x0, clip.x0), std::max(box.y0, clip.y0), std::min(box.x1, clip.x1),
          std::min(box.y1, clip.y1)};
}

// The path's coverage of the box, in a context with the same transformation as cr.
cairo_surface_t* coverage(cairo_t* cr, const Path& p, FillRule rule, PixelBox box) {
  cairo_surface_t* mask = cairo_image_surface_create(CAIRO_FORMAT_A8, box.w(), box.h());
  cairo_t* m = cairo_create(mask);
  cairo_matrix_t matrix;
  cairo_get_matrix(cr, &matrix);
  matrix.x0 -= box.x0;
  matrix.y0 -= box.y0;
  cairo_set_matrix(m, &matrix);
  setCairoPath(m, p);
  cairo_set_fill_rule(m, cairoFillRule(rule));
  cairo_fill(m);
  cairo_destroy(m);
  cairo_surface_flush(mask);
  return mask;
}

}  // namespace

void paintPathShadow(cairo_t* cr, const Path& p, FillRule rule, Shadow s) {
  if (p.empty() || s.color.a <= 0) return;
  cairo_save(cr);
  cairo_translate(cr, s.offset.x, s.offset.y);
  double dx = s.blur / 2, dy = 0;
  cairo_user_to_device_distance(cr, &dx, &dy);
  const double sigma = std::hypot(dx, dy);
  setCairoPath(cr, p);
  cairo_set_fill_rule(cr, cairoFillRule(rule));
  const PixelBox box = shadowBox(cr, blurReach(sigma) + 1);
  cairo_new_path(cr);
  if (box.w() > 0 && box.h() > 0) {
    cairo_surface_t* mask = coverage(cr, p, rule, box);
    blurAlpha(cairo_image_surface_get_data(mask), box.w(), box.h(),
              cairo_image_surface_get_stride(mask), sigma);
    cairo_surface_mark_dirty(mask);
    cairo_identity_matrix(cr);
    cairo_set_source_rgba(cr, s.color.r, s.color.g, s.color.b, s.color.a);
    cairo_mask_surface(cr, mask, box.x0, box.y0);
    cairo_surface_destroy(mask);
  }
  cairo_restore(cr);
}

}  // namespace lad::drawing
