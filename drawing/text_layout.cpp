#include "drawing/text_layout.h"

#include <pango/pangocairo.h>

#include <string>

#include "drawing/text_measure.h"

namespace lad::drawing {

namespace {

PangoAlignment pangoAlignment(Align a) {
  switch (a) {
    case Align::Center:
      return PANGO_ALIGN_CENTER;
    case Align::Right:
      return PANGO_ALIGN_RIGHT;
    case Align::Left:
      break;
  }
  return PANGO_ALIGN_LEFT;
}

}  // namespace

void prepareTextContext(PangoContext* context) {
  // Unhinted metrics: widths scale with the font size, as in the browser.
  cairo_font_options_t* options = cairo_font_options_create();
  cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
  cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_NONE);
  pango_cairo_context_set_font_options(context, options);
  cairo_font_options_destroy(options);
  pango_context_set_round_glyph_positions(context, FALSE);
}

PangoLayout* makeLayout(PangoContext* context, std::string_view text, Font f, double width,
                        Align a) {
  PangoLayout* layout = pango_layout_new(context);
  PangoFontDescription* desc = pango_font_description_new();
  pango_font_description_set_family(desc, kFontFamily);
  pango_font_description_set_absolute_size(desc, f.size * PANGO_SCALE);
  pango_font_description_set_weight(desc, f.bold ? PANGO_WEIGHT_BOLD : PANGO_WEIGHT_NORMAL);
  pango_layout_set_font_description(layout, desc);
  pango_font_description_free(desc);
  if (width > 0) {
    pango_layout_set_width(layout, static_cast<int>(width * PANGO_SCALE));
    pango_layout_set_wrap(layout, PANGO_WRAP_WORD_CHAR);
  }
  pango_layout_set_alignment(layout, pangoAlignment(a));
  const std::string owned(text);
  pango_layout_set_text(layout, owned.c_str(), static_cast<int>(owned.size()));
  return layout;
}

}  // namespace lad::drawing
