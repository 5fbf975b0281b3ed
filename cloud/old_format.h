// The one-time import of data that an earlier version of the program kept in the cloud folder:
// pictures, attachments and database copies, each put where this version keeps its own.
#pragma once

#include <filesystem>
#include <string>

namespace lad {
class Store;
}  // namespace lad

namespace lad::cloud {

// This version's name for a file of the old format: databases keep theirs, a portrait
// "child<N>.<ext>" becomes "child-<guid>.jpg", and the child diary renames its numbered files.
std::string oldCloudFileName(int appid, std::string_view name);

// Copies the file over the local one of its name, in the folder its kind belongs to. A database
// copy is then taken in by the launch steps. False with a reason when the copy failed.
bool importOldCloudFile(Store& store, const std::filesystem::path& file, std::string* error);

}  // namespace lad::cloud
