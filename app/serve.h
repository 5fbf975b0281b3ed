#pragma once

#include "app/cli.h"

namespace lad::app {

// Serves the installation until SIGINT or SIGTERM; returns the process exit code.
int serve(int appid, const ServeOptions& options);

}  // namespace lad::app
