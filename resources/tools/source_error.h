// A fault found in a source file of the build, told by its line (0 when no line applies).
#pragma once

#include <string>

namespace lad::resgen {

struct SourceError {
  int line = 0;
  std::string message;
};

}  // namespace lad::resgen
