// The steps that prepare the live database at each launch, before anything else uses it:
// putting the file in place and giving a new installation's first profile its dates.
#pragma once

namespace lad {

class Store;

// Runs the launch steps in order. The later steps that bring a database of an older program
// version up to date join this chain as they are written.
void fromOldVersion(Store& store);

}  // namespace lad
