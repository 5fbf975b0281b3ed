#include "drawing/text_measure.h"

#include <pango/pangocairo.h>

#include <memory>

#include "drawing/text_layout.h"

namespace lad::drawing {

namespace {

// The default font map is per thread, and so is this context: measuring is safe from any
// thread, and the fonts are loaded once per thread. The context lets go of the thread's font map
// when the thread ends, so that the map and its fonts go with the thread.
PangoContext* threadContext() {
  thread_local const std::unique_ptr<PangoContext, void (*)(gpointer)> context(
      [] {
        PangoContext* c = pango_font_map_create_context(pango_cairo_font_map_get_default());
        prepareTextContext(c);
        return c;
      }(),
      g_object_unref);
  return context.get();
}

}  // namespace

Size measureText(std::string_view text, Font f, double maxWidth) {
  PangoLayout* layout = makeLayout(threadContext(), text, f, maxWidth, Align::Left);
  PangoRectangle logical;
  pango_layout_get_extents(layout, nullptr, &logical);
  g_object_unref(layout);
  return {static_cast<double>(logical.width) / PANGO_SCALE,
          static_cast<double>(logical.height) / PANGO_SCALE};
}

std::vector<TextLine> breakText(std::string_view text, Font f, double maxWidth) {
  PangoLayout* layout = makeLayout(threadContext(), text, f, maxWidth, Align::Left);
  const char* bytes = pango_layout_get_text(layout);
  std::vector<TextLine> lines;
  PangoLayoutIter* it = pango_layout_get_iter(layout);
  do {
    const PangoLayoutLine* line = pango_layout_iter_get_line_readonly(it);
    std::string_view piece(bytes + line->start_index, static_cast<std::size_t>(line->length));
    lines.push_back({std::string(piece),
                     static_cast<double>(pango_layout_iter_get_baseline(it)) / PANGO_SCALE});
  } while (pango_layout_iter_next_line(it));
  pango_layout_iter_free(it);
  g_object_unref(layout);
  return lines;
}

}  // namespace lad::drawing
