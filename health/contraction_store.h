// The contractions of a pregnancy in the diary database.
#pragma once

#include <string>
#include <vector>

#include "health/contraction.h"
#include "store/store.h"

namespace lad::health {

// The pregnancy's contractions by calendar day of their start, in insertion order within a day.
std::vector<Contraction> loadContractions(Store& store, const std::string& pregguid);
// Stores the contraction and returns its new row key, or -1 on any failure.
std::int64_t addContraction(Store& store, const Contraction& c, const std::string& pregguid);
// False when the row could not be deleted.
bool deleteContraction(Store& store, std::int64_t schid);

}  // namespace lad::health
