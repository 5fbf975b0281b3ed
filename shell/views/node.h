// The start of every view node: a map with its kind.
#pragma once

#include <string>
#include <string_view>

#include "core/value.h"

namespace lad::shell {

inline Map node(std::string_view kind) {
  Map m;
  m.set("kind", std::string(kind));
  return m;
}

}  // namespace lad::shell
