// The setup dictionary: one profile in memory (a pregnancy, a child or the woman), read from and
// written to its row of the edition's profile table.
#pragma once

#include <optional>
#include <string>

#include "core/value.h"

namespace lad {

class Context;
class Store;

// Fills the defaults of a new profile of the edition.
void initSetupStruct(const Context& context, Map& setup);

// The profile of that guid: the defaults with its row laid over them, and "active" true. With
// no guid: the defaults alone, without "active". The key "sdat1" (child: "sbirthdate") is there
// exactly when the row exists.
Map loadSetupData(Store& store, const std::optional<std::string>& gid);

// Saving regimes: from the profile editor, which keeps the keys it does not show as stored; as
// it came from another device; or from a dialog that shows every key (the child's), as it stands.
enum SetupRegime { kSetupFromEditor = 1, kSetupFromCloud = 2, kSetupWhole = 3 };

// Writes the profile: an update of its row, or an insert when there is none. A setup with
// "active" false removes the profile softly, with its portrait; its diary rows stay. The
// woman's edition has no profile to save.
void saveSetupData(Store& store, SetupRegime regime, Map setup, const std::string& gid);

// Writes the woman's profile row from the editor: "sbirthdate" ("yyyy-MM-dd"), "bodytype" and
// "rost". Another device's setup never reaches it.
void saveWomanSetup(Store& store, const Map& setup, const std::string& gid);

}  // namespace lad
