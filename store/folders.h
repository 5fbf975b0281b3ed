// Where the files of an installation live: its named folders, and the sub-folder of the
// documents folder that each kind of file belongs in.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace lad {

class Context;

// The folder a named place stands for: "Document", "Library", "Temp", "Reserv", "Root" (the
// program's resources) or "Cloud" (the shared cloud folder, or "Temp" when none is set or it
// cannot be made). Any other name has no folder.
std::optional<std::filesystem::path> getSystemFolder(const Context& context, std::string_view name);

// The folder under base that a file of this name belongs in: attachments, documents, small and
// full pictures, databases, or base itself.
std::filesystem::path typeFilePath(const std::filesystem::path& base, std::string_view filename);

bool isDirectory(const std::filesystem::path& path);

}  // namespace lad
