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

// The nodes of a list of views, in order.
template <class Views>
List valuesOf(const Views& views) {
  List list;
  for (const auto& v : views) list.push_back(v.toValue());
  return list;
}

}  // namespace lad::shell
