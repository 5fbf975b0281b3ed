#include "drawing/cairo_canvas.h"

#include <pango/pangocairo.h>

#include "drawing/text_layout.h"

namespace lad::draw {

CairoCanvas::CairoCanvas(cairo_t* cr) : cr_(cr), text_(pango_cairo_create_context(cr)) {
  prepareTextContext(text_);
}

CairoCanvas::~CairoCanvas() {
  g_object_unref(text_);
}

void CairoCanvas::setPath(const Path& p) {
  cairo_new_path(cr_);
  for (const auto& op : p.ops()) {
    switch (op.kind) {
      case Path::Kind::Move:
        cairo_move_to(cr_, op.to.x, op.to.y);
        break;
      case Path::Kind::Line:
        cairo_line_to(cr_, op.to.x, op.to.y);
        break;
      case Path::Kind::Arc:
        cairo_arc(cr_, op.to.x, op.to.y, op.radius, op.start, op.end);
        break;
      case Path::Kind::Close:
        cairo_close_path(cr_);
        break;
    }
  }
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
  setPath(p);
  setColor(c);
  cairo_set_fill_rule(
      cr_, rule == FillRule::EvenOdd ? CAIRO_FILL_RULE_EVEN_ODD : CAIRO_FILL_RULE_WINDING);
  cairo_fill(cr_);
  cairo_set_fill_rule(cr_, CAIRO_FILL_RULE_WINDING);
}

void CairoCanvas::strokePath(const Path& p, Color c, double width,
                             const std::vector<double>& dash) {
  setPath(p);
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
  setPath(clip);
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

void CairoCanvas::drawImage(const std::string& file, Rect r) {
  cairo_surface_t* image = cairo_image_surface_create_from_png(file.c_str());
  const int w = cairo_image_surface_get_width(image);
  const int h = cairo_image_surface_get_height(image);
  if (cairo_surface_status(image) == CAIRO_STATUS_SUCCESS && w > 0 && h > 0) {
    cairo_save(cr_);
    cairo_translate(cr_, r.x, r.y);
    cairo_scale(cr_, r.w / w, r.h / h);
    cairo_set_source_surface(cr_, image, 0, 0);
    cairo_paint(cr_);
    cairo_restore(cr_);
  }
  cairo_surface_destroy(image);
}

}  // namespace lad::draw
