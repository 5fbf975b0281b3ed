#pragma once

#include "app/cli.h"

namespace lad::app {

// One pass over the cloud folder for an installation whose server is stopped: what the other
// installations changed is applied. Returns the exit code: 0 done (files that were refused are
// listed and tried at the next pass), 2 the cloud is off and no folder was given.
int sync(int appid, const SyncArgs& args);

}  // namespace lad::app
