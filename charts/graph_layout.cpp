#include "charts/graph_layout.h"

#include "charts/plot_scale.h"

namespace lad::charts {

GraphScale GraphScale::of(const Map& dic, double s) {
  const Value* zoom = dic.find("zoom");
  return {s, zoom && !zoom->isNull() ? zoom->doubleValue() : s};
}

GraphLayout GraphLayout::of(const Map& dic, drawing::Rect frame, double s) {
  return {frame, dic["isBorders"].boolValue() ? borderedPlot(frame, s) : frame};
}

}  // namespace lad::charts
