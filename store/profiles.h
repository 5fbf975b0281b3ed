// Profiles: the pregnancies, children or the woman whose rows the diary holds.
#pragma once

#include <optional>
#include <string>

#include "core/value.h"

namespace lad {

class Store;

// The pregnancy that began last before the day (its first day counts from the day after); the
// earliest one for a day before all; nullopt when there is none.
std::optional<std::string> getActivePregnancy(Store& store, Date day);

}  // namespace lad
