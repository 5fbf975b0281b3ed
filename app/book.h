#pragma once

#include "app/cli.h"

namespace lad::app {

// Writes the photo book the arguments ask for; returns the process exit code: 0 done, 1 the
// book could not be made, 2 an argument or the data folder is wrong. An old file stays whole.
int book(int appid, const BookArgs& args);

}  // namespace lad::app
