// Pango layouts of the drawing font, shared by measuring and by the cairo back end.
#pragma once

#include <pango/pango.h>

#include <string_view>

#include "drawing/geometry.h"

namespace lad::drawing {

// Sets the context up once for the layouts made in it: unhinted metrics, so that widths scale
// with the font size as in the browser.
void prepareTextContext(PangoContext* context);

// A layout of the text in the font, wrapped at word boundaries within width (0: no wrapping).
// The caller owns the result (g_object_unref).
PangoLayout* makeLayout(PangoContext* context, std::string_view text, Font f, double width,
                        Align a);

}  // namespace lad::drawing
