#include "store/folders.h"

#include <system_error>

#include "core/context.h"

namespace lad {

namespace {

bool startsWith(std::string_view name, std::string_view prefix, std::size_t minLength) {
  return name.size() >= minLength && name.starts_with(prefix);
}

bool endsWith(std::string_view name, std::string_view suffix, std::size_t minLength) {
  return name.size() >= minLength && name.ends_with(suffix);
}

std::filesystem::path cloudFolder(const Context& context) {
  const std::string configured = context.settings().stringForKey("cloudFolder");
  if (!configured.empty()) {
    std::error_code error;
    std::filesystem::create_directories(configured, error);
    if (isDirectory(configured)) return configured;
  }
  return context.tempDir();
}

}  // namespace

std::optional<std::filesystem::path> getSystemFolder(const Context& context,
                                                     std::string_view name) {
  if (name == "Document") return context.documentsDir();
  if (name == "Library") return context.libraryDir();
  if (name == "Temp") return context.tempDir();
  if (name == "Reserv") return context.documentsDir() / "reserv";
  if (name == "Root") return context.resourcesDir();
  if (name == "Cloud") return cloudFolder(context);
  return std::nullopt;
}

std::filesystem::path typeFilePath(const std::filesystem::path& base, std::string_view filename) {
  if (startsWith(filename, "a-", 4)) return base / "analizy";
  if (startsWith(filename, "d-", 4) || startsWith(filename, "doc-", 6)) return base / "documents";
  if (endsWith(filename, "-s.jpg", 7)) return base / "picture-s";
  if (endsWith(filename, ".jpg", 5)) return base / "picture";
  if (endsWith(filename, ".sqlite", 8)) return base / "reserv";
  return base;
}

bool isDirectory(const std::filesystem::path& path) {
  std::error_code error;
  return std::filesystem::is_directory(path, error);
}

}  // namespace lad
