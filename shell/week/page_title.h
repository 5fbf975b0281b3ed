// The caption of a page as the main menu names it.
#pragma once

#include <string>

#include "core/context.h"
#include "core/menu_table.h"

namespace lad::shell {

inline std::string pageTitle(const Context& context, int page) {
  const Map* row = menuRow(context.values().tabMenu, page);
  return row ? (*row)["name"].text() : std::string();
}

}  // namespace lad::shell
