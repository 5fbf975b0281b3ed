#include "cloud/old_format.h"

#include <algorithm>
#include <cctype>
#include <charconv>

#include "core/atomic_file.h"
#include "core/context.h"
#include "core/edition.h"
#include "core/ids.h"
#include "store/file_names.h"
#include "store/first_launch.h"
#include "store/folders.h"
#include "store/store.h"

namespace lad::cloud {

namespace {

bool hasSqliteExtension(std::string_view name) {
  const auto dot = name.rfind('.');
  if (dot == std::string_view::npos) return false;
  std::string extension(name.substr(dot + 1));
  std::ranges::transform(extension, extension.begin(),
                         [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return extension == "sqlite";
}

// "child12.jpg": the number between "child" and the last four characters.
std::string portraitName(std::string_view name) {
  constexpr std::size_t kPrefix = 5;  // "child"
  const std::string_view number = name.substr(kPrefix, name.size() - kPrefix - 4);
  std::int64_t n = 0;
  std::from_chars(number.data(), number.data() + number.size(), n);
  return "child-" + newID2(1, n) + ".jpg";
}

}  // namespace

std::string oldCloudFileName(int appid, std::string_view name) {
  if (hasSqliteExtension(name)) return std::string(name);
  if (name.size() >= 9 && name.starts_with("child")) return portraitName(name);
  if (isChildEdition(appid)) return oldFileNameToNew(name);
  return std::string(name);
}

bool importOldCloudFile(Store& store, const std::filesystem::path& file, std::string* error) {
  Context& context = store.context();
  if (!std::filesystem::is_regular_file(file)) return true;
  const std::string name = oldCloudFileName(context.values().appid, file.filename().string());
  const std::filesystem::path folder = typeFilePath(context.documentsDir(), name);
  std::error_code made;
  std::filesystem::create_directories(folder, made);
  if (!copyFileAtomically(file, folder / name)) {
    if (error) *error = "could not copy " + file.string() + " to " + (folder / name).string();
    return false;
  }
  if (name.size() >= 8 && name.ends_with(".sqlite")) fromOldVersion(store);
  return true;
}

}  // namespace lad::cloud
