// File names of attachments from before identifiers were random, and their current names.
#pragma once

#include <string>
#include <string_view>

namespace lad {

// The current name of an old attachment file of the child diary. A name numbered by the child
// ("12-photo.jpg") takes the child's fixed guid; an analysis or document file ("a-12-1.pdf",
// "d-12-1.jpg") keeps its prefix before that guid. Names of 31 characters or more are current
// already, and only "pdf" and "jpg" files (any case) are renamed; any other name stays.
std::string oldFileNameToNew(std::string_view name);

}  // namespace lad
