#include "drawing/text_measure.h"

#include <pango/pangocairo.h>

#include "drawing/text_layout.h"

namespace lad::draw {

Size measureText(std::string_view text, Font f, double maxWidth) {
  // The default font map is per thread, so measuring is safe from any thread.
  PangoContext* context = pango_font_map_create_context(pango_cairo_font_map_get_default());
  PangoLayout* layout = makeLayout(context, text, f, maxWidth, Align::Left);
  PangoRectangle logical;
  pango_layout_get_extents(layout, nullptr, &logical);
  g_object_unref(layout);
  g_object_unref(context);
  return {static_cast<double>(logical.width) / PANGO_SCALE,
          static_cast<double>(logical.height) / PANGO_SCALE};
}

}  // namespace lad::draw
