// The check of a change file from another installation before anything of it is applied: every
// key the file has must hold the kind of value that a writer puts there.
#pragma once

#include <string>

#include "core/value.h"

namespace lad {
class Context;
}  // namespace lad

namespace lad::cloud {

// Empty when the root can be applied; otherwise what is wrong with it. The day ("date") must
// read as yyyy-MM-dd when the file carries records or feedings, and the names of its files
// must be bare file names.
std::string changeProblem(const Context& context, const Value& root);

}  // namespace lad::cloud
