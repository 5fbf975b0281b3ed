#include "store/measures.h"

#include <array>

namespace lad {

std::string meraToRead(int measure) {
  static constexpr std::array<const char*, 5> kNames{"Миллилитры (мил.)", "Граммы (гр.)",
                                                     "Штуки (шт.)", "Ложки столовые (лс.)",
                                                     "Ложки чайные (лч.)"};
  if (measure < 1 || measure > static_cast<int>(kNames.size())) return "";
  return kNames[measure - 1];
}

std::string measureShortName(int measure) {
  const std::string name = meraToRead(measure);
  const auto open = name.find('(');
  return open == std::string::npos ? "" : name.substr(open + 1);
}

}  // namespace lad
