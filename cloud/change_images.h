// The files that travel inside a change file ("images"): each entry carries its "type", its
// "name" and the file's bytes as "data"; the day photo also names its small copy ("names").
#pragma once

#include <string>

#include "core/value.h"

namespace lad {
class Context;
}  // namespace lad

namespace lad::cloud {

// A profile's portrait, and for a child the files of its documents.
List profileImages(const Context& context, const Map& setup, const std::string& gid);
// The day's photo, then the files of the analyses records (tp 26), in the order of the records.
List dayImages(const Context& context, Date day, const std::string& gid, const List& records);

// Whether a name from another installation is a bare file name that cannot leave its folder.
bool isPlainFileName(std::string_view name);

}  // namespace lad::cloud
