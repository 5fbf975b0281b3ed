// Profiles: the pregnancies, children or the woman whose rows the diary holds.
#pragma once

#include <optional>
#include <string>

#include "core/value.h"

namespace lad {

class Store;
class StoreBracket;

// The live profiles in date order, each a map with "guid" and the edition's keys. The woman's
// edition has no list: its screens use the first profile's fixed guid.
List loadProfils(Store& store);

// Child edition only: the live children with "sbirthdate", "chid", "chname"; empty elsewhere.
List profileList(Store& store);

// Every child's name by its guid; a name shorter than two letters reads "Без имени".
Map childNames(Store& store);

// The pregnancy that began last before the day (its first day counts from the day after); the
// earliest one for a day before all; nullopt when there is none.
std::optional<std::string> getActivePregnancy(Store& store, Date day);

// Records the birth on that day with its result, inside an open bracket. An empty result
// clears the birth, but only when it was recorded on that very day.
void setBirthday(const Store& store, StoreBracket& bracket, Date day, const std::string& gid,
                 const std::string& result);

// The five meal times, "HH:mm" joined by "<table>", shared by every profile of the edition.
std::string getObed(Store& store);
void setObed(Store& store, const std::string& meals);

}  // namespace lad
