// The cloud folder as this installation sees it: change files written into it whole, their
// change dates, and the receipts (the date last seen for each file name, kept in the settings).
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "core/value.h"

namespace lad {
class Context;
}  // namespace lad

namespace lad::cloud {

// Where change files go: the cloud folder, or the temporary folder when none is set or it cannot
// be made, so that writers go on working and their files simply never travel.
std::filesystem::path cloudFolderOf(const Context& context);
// Whether a cloud folder is set and there; without one there is nothing to scan.
bool hasCloudFolder(const Context& context);

// The file's last change, to the millisecond; nullopt when it is not there.
std::optional<Date> fileChangeDate(const std::filesystem::path& file);

// The receipt of a file name; nullopt when the name was never seen.
std::optional<Date> changeReceipt(const Context& context, const std::string& name);
// Records the receipt and writes the settings out.
void setChangeReceipt(Context& context, const std::string& name, Date seen);

// Writes the map as a change file under its name (a temporary file renamed into place, so a
// sync tool never carries half a file), then takes its change date as the receipt, so that
// this installation never applies its own change again. False with a reason when it failed.
bool writeChangeFile(Context& context, const std::string& name, const Map& root,
                     std::string* error);

}  // namespace lad::cloud
