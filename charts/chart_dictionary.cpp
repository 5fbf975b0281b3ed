#include "charts/chart_dictionary.h"

namespace lad::charts {

void initGraphDic(Map& dic) {
  for (const char* key : {"yAxisMin", "yAxisMax", "xAxisMin", "xAxisMax"}) dic.set(key, 0);
  dic.set("setka", false);
  dic.set("bottomLine", 0);
}

void addPoint(List& series, double x, double y, const std::string& label) {
  Map p;
  p.set("x", x);
  p.set("y", y);
  if (!label.empty()) p.set("label", label);
  series.push_back(std::move(p));
}

void addToLegenda(List& legend, const std::string& caption, int pos, bool checked) {
  Map row;
  row.set("caption", caption);
  row.set("pos", pos);
  row.set("checked", checked);
  legend.push_back(std::move(row));
}

}  // namespace lad::charts
