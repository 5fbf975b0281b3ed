#include "drawing/cairo_path.h"

namespace lad::drawing {

void setCairoPath(cairo_t* cr, const Path& p) {
  cairo_new_path(cr);
  for (const auto& op : p.ops()) {
    switch (op.kind) {
      case Path::Kind::Move:
        cairo_move_to(cr, op.to.x, op.to.y);
        break;
      case Path::Kind::Line:
        cairo_line_to(cr, op.to.x, op.to.y);
        break;
      case Path::Kind::Arc:
        cairo_arc(cr, op.to.x, op.to.y, op.radius, op.start, op.end);
        break;
      case Path::Kind::ArcNegative:
        cairo_arc_negative(cr, op.to.x, op.to.y, op.radius, op.start, op.end);
        break;
      case Path::Kind::Close:
        cairo_close_path(cr);
        break;
    }
  }
}

cairo_fill_rule_t cairoFillRule(FillRule rule) {
  return rule == FillRule::EvenOdd ? CAIRO_FILL_RULE_EVEN_ODD : CAIRO_FILL_RULE_WINDING;
}

}  // namespace lad::drawing
