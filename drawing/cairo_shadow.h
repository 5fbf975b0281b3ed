// The soft shadow of a filled path on a cairo context.
#pragma once

#include <cairo.h>

#include "drawing/canvas.h"

namespace lad::drawing {

// Renders the path's coverage into an alpha bitmap padded by the blur, blurs it (the blur is
// twice the standard deviation, as in SVG) and paints the colour through it at the offset.
void paintPathShadow(cairo_t* cr, const Path& p, FillRule rule, Shadow s);

}  // namespace lad::drawing
