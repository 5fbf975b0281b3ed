// The files that a change file carries ("images"), put in place: analyses, documents and photos,
// each in its folder, and for a day photo its small copy made here from the full one.
#pragma once

#include <string>
#include <vector>

#include "core/value.h"

namespace lad {
class Context;
}  // namespace lad

namespace lad::cloud {

// Writes each file whole. A photo that is not a picture is not written; that, a file of a kind
// this program does not keep and a failed write each leave a line in notes.
void writeReceivedFiles(const Context& context, const List& images,
                        std::vector<std::string>& notes);

}  // namespace lad::cloud
