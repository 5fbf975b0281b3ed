// Bringing an installation up: the shared values from the settings, the one-time identity,
// the menu table.
#pragma once

#include "core/context.h"

namespace lad {

void launch(Context& context);

}  // namespace lad
