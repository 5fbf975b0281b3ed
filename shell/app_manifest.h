// The web app manifest of the edition: its name, icons and home-screen shortcuts.
#pragma once

#include "core/context.h"

namespace lad::shell {

Value webAppManifest(const Context& context);

}  // namespace lad::shell
