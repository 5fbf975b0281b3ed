#include "charts/palette.h"

#include <array>

namespace lad::charts {

drawing::Color nextColor(int n) {
  static constexpr std::array<drawing::Color, 7> kColors{{{0.898, 0.369, 0.337, 1},
                                                          {0.443, 0.718, 0.847, 1},
                                                          {0.902, 0.725, 0.286, 1},
                                                          {0.529, 0.788, 0.396, 1},
                                                          {0.933, 0.576, 0.259, 1},
                                                          {0.322, 0.643, 0.314, 1},
                                                          {0.639, 0.314, 0.643, 1}}};
  return n >= 2 && n <= 7 ? kColors[n - 1] : kColors[0];
}

Value colorValue(drawing::Color c) {
  return List{c.r, c.g, c.b, c.a};
}

drawing::Color colorFrom(const Value& v) {
  const List* l = v.asList();
  if (!l || l->size() != 4) return {0, 0, 0, 0};
  return {(*l)[0].doubleValue(), (*l)[1].doubleValue(), (*l)[2].doubleValue(),
          (*l)[3].doubleValue()};
}

void setThemeColors(Map& dic, bool darkIcons, drawing::Color gridOnLight) {
  dic.set("mainColor",
          colorValue(darkIcons ? drawing::Color{0.7, 0, 0, 1} : drawing::Color{1, 0.8, 0, 1}));
  dic.set("backColor", colorValue(darkIcons ? gridOnLight : drawing::Color{0.5, 0.5, 0.5, 1}));
  dic.set("textColor",
          colorValue(darkIcons ? drawing::Color{0, 0, 0, 1} : drawing::Color{1, 1, 1, 1}));
}

}  // namespace lad::charts
