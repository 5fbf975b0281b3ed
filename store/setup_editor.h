// From the rows of the profile editor to a setup dictionary ready to be saved.
#pragma once

#include <string>

#include "core/value.h"

namespace lad {

class Store;

// What the photo row's "save" asks for when the profile is saved.
enum PhotoSave { kWritePhoto = 1, kRemovePhoto = 2 };

// Reads the editor's rows by their "field" and "source": the three dates ("dd.MM.yyyy", kept
// as "yyyy-MM-dd"; one that does not read is left out), sex and body type, name, height and
// weight. The photo row's "save" 1 writes its "image" as the profile's portrait in JPEG, 2
// removes the portrait. No rows at all stand for the removal of the profile: only "active"
// false. A picture that cannot be read leaves the portrait as it was and says why in
// photoError.
Map setupArrayToDic(Store& store, const List& rows, const std::string& gid,
                    std::string* photoError = nullptr);

}  // namespace lad
