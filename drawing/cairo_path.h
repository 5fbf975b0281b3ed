// Handing a Path to cairo.
#pragma once

#include <cairo.h>

#include "drawing/canvas.h"

namespace lad::drawing {

// Replaces the context's current path by the path, in the context's user space.
void setCairoPath(cairo_t* cr, const Path& p);

cairo_fill_rule_t cairoFillRule(FillRule rule);

}  // namespace lad::drawing
