#include "shell/views/charts.h"

#include "shell/views/node.h"

namespace lad::shell {

Value SvgView::toValue() const {
  Map m = node(kKind);
  m.set("id", id);
  m.set("svg", svg);
  m.set("width", width);
  m.set("height", height);
  return m;
}

}  // namespace lad::shell
