// Reading matter delivered with the program: named without extension in a content folder, found
// as ".jsn" then ".txt", with "empty-u.txt" standing in for a name that has neither.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace lad {
class Context;
}

namespace lad::content {

// The content folder of the installation's resources.
std::filesystem::path contentFolder(const Context& context);

struct Resource {
  std::string text;   // trimmed; empty when nothing could be read
  bool json = false;  // read from a ".jsn" file
};

// Finds and reads the resource. A name that would leave the folder counts as missing.
Resource loadResource(const std::filesystem::path& folder, std::string_view name);

// The ".txt" form of the resource, or of "empty-u" when it has none; trimmed.
std::string fileToString(const std::filesystem::path& folder, std::string_view name);

// The text without leading and trailing blanks, tabs and new lines.
std::string_view trimText(std::string_view text);

// The non-empty body lines (kind 4) of one group of a plain text, in file order, joined by new
// lines; untranslated. "" when the group has none.
std::string extractGroupText(std::string_view text, int groupid);

}  // namespace lad::content
