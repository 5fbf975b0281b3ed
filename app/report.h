#pragma once

#include "app/cli.h"

namespace lad::app {

// Writes the report the arguments ask for; returns the process exit code: 0 done, 1 the file
// could not be written, 2 an argument or the data folder is wrong. No partial file is left.
int report(int appid, const ReportArgs& args);

}  // namespace lad::app
