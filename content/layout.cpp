// The tools of an installation's layout, and lookups in a laid-out text.
#include "content/layout.h"

namespace lad::content {

LayoutTools contextTools(const Context& context) {
  LayoutTools tools;
  tools.dates = &context.dates();
  tools.translate = [&context](std::string_view text) { return context.translate(text); };
  return tools;
}

std::string hiddenText(const TextLayout& layout, std::string_view guid) {
  for (const HiddenText& h : layout.hidden)
    if (h.guid == guid) return h.text;
  return "";
}

}  // namespace lad::content
