// Finding, reading and trimming content resources.
#include "content/resource.h"

#include <fstream>
#include <optional>
#include <sstream>

#include "content/record.h"
#include "core/context.h"

namespace lad::content {

namespace {

constexpr std::string_view kFallback = "empty-u";

bool safeName(std::string_view name) {
  return !name.empty() && name.find('/') == std::string_view::npos &&
         name.find('\\') == std::string_view::npos && name.find("..") == std::string_view::npos &&
         name.find('\0') == std::string_view::npos;
}

std::optional<std::string> readFile(const std::filesystem::path& folder, std::string_view name,
                                    std::string_view extension) {
  if (!safeName(name)) return std::nullopt;
  std::ifstream in(folder / (std::string(name) + std::string(extension)), std::ios::binary);
  if (!in) return std::nullopt;
  std::ostringstream text;
  text << in.rdbuf();
  return std::string(trimText(text.str()));
}

}  // namespace

std::filesystem::path contentFolder(const Context& context) {
  return context.resourcesDir() / "content";
}

std::string_view trimText(std::string_view text) {
  constexpr std::string_view kSpace = " \t\r\n\v\f";
  const auto first = text.find_first_not_of(kSpace);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kSpace) - first + 1);
}

Resource loadResource(const std::filesystem::path& folder, std::string_view name) {
  if (auto json = readFile(folder, name, ".jsn")) return {std::move(*json), true};
  return {fileToString(folder, name), false};
}

std::string fileToString(const std::filesystem::path& folder, std::string_view name) {
  if (auto text = readFile(folder, name, ".txt")) return std::move(*text);
  return readFile(folder, kFallback, ".txt").value_or("");
}

std::string extractGroupText(std::string_view text, int groupid) {
  std::string lines;
  for (const Record& r : parsePlainText(text).records) {
    if (r.tp != 4 || r.groupid != groupid || r.text.empty()) continue;
    if (!lines.empty()) lines += '\n';
    lines += r.text;
  }
  return lines;
}

}  // namespace lad::content
