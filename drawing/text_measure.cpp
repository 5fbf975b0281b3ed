#include "drawing/text_measure.h"

#include <pango/pangocairo.h>

#include "drawing/text_layout.h"

namespace lad::draw {

Size measureText(std::string_view text, Font f, double maxWidth) {
  // The default font map is per thread, and so is this context: measuring is safe from any
  // thread, and the fonts are loaded once per thread.
  thread_local PangoContext* context = [] {
    PangoContext* c = pango_font_map_create_context(pango_cairo_font_map_get_default());
    prepareTextContext(c);
    return c;
  }();
  PangoLayout* layout = makeLayout(context, text, f, maxWidth, Align::Left);
  PangoRectangle logical;
  pango_layout_get_extents(layout, nullptr, &logical);
  g_object_unref(layout);
  return {static_cast<double>(logical.width) / PANGO_SCALE,
          static_cast<double>(logical.height) / PANGO_SCALE};
}

}  // namespace lad::draw
