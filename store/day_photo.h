// The photograph of a diary day: two picture files named by the day (and in the child's diary
// by the child), the full one and its small copy.
#pragma once

#include <string>

#include "core/value.h"

namespace lad {

class Context;

// Sets "isphoto" when both files of the day exist, and then "photopath2" to the full picture
// and "photopath" to the picture to show: the full one in the report regims, else the small.
void correctPhoto(const Context& context, Map& day, int regim, const std::string& gid);

}  // namespace lad
