// The nodes of pictures the server draws.
#pragma once

#include <string>
#include <string_view>

#include "core/value.h"

namespace lad::shell {

// A picture drawn as SVG, sized in CSS pixels.
struct SvgView {
  static constexpr std::string_view kKind = "svg";
  std::string id;
  std::string svg;
  double width = 0;
  double height = 0;

  Value toValue() const;
};

}  // namespace lad::shell
