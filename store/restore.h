// Bringing the live database into place at launch, and telling a usable file from a bad one.
#pragma once

namespace lad {

class Store;

// Makes the reserve folder, takes over a database left in the library or documents folder by
// an older version (the live file it replaces is kept as a reserve copy), and copies the
// edition's template when there is still no live file. True when the template was copied.
bool fromOldVersionNewRestore(Store& store);

// False only for a file that opens but whose dictionary table yields no row; a file that
// cannot be opened at all counts as good.
bool testBaseFile(Store& store);

}  // namespace lad
