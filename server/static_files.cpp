#include "server/static_files.h"

#include <algorithm>
#include <functional>
#include <map>

#include "core/atomic_file.h"

namespace lad::server {

namespace {

// "..", a NUL or a backslash could reach outside the folder; such a path names no file.
bool isSafeRelative(std::string_view relative) {
  if (relative.find('\0') != std::string_view::npos || relative.find('\\') != relative.npos)
    return false;
  std::size_t at = 0;
  while (at <= relative.size()) {
    const std::size_t end = std::min(relative.find('/', at), relative.size());
    if (relative.substr(at, end - at) == "..") return false;
    at = end + 1;
  }
  return true;
}

// The part of the path under the prefix, or nullopt when the path is not under it.
std::optional<std::string_view> underPrefix(std::string_view path, std::string_view prefix) {
  if (!path.starts_with(prefix)) return std::nullopt;
  std::string_view rest = path.substr(prefix.size());
  if (!prefix.ends_with('/') && !rest.empty() && !rest.starts_with('/')) return std::nullopt;
  while (rest.starts_with('/')) rest.remove_prefix(1);
  return rest;
}

}  // namespace

std::string contentTypeFor(const std::filesystem::path& file) {
  static const std::map<std::string, std::string, std::less<>> kTypes = {
      {".html", "text/html; charset=utf-8"},
      {".js", "text/javascript; charset=utf-8"},
      {".mjs", "text/javascript; charset=utf-8"},
      {".css", "text/css; charset=utf-8"},
      {".json", "application/json"},
      {".map", "application/json"},
      {".webmanifest", "application/manifest+json"},
      {".txt", "text/plain; charset=utf-8"},
      {".svg", "image/svg+xml"},
      {".png", "image/png"},
      {".jpg", "image/jpeg"},
      {".jpeg", "image/jpeg"},
      {".gif", "image/gif"},
      {".webp", "image/webp"},
      {".ico", "image/x-icon"},
      {".woff2", "font/woff2"},
      {".woff", "font/woff"},
      {".ttf", "font/ttf"},
  };
  const auto it = kTypes.find(file.extension().string());
  return it == kTypes.end() ? "application/octet-stream" : it->second;
}

void StaticFiles::mount(std::string prefix, std::filesystem::path folder) {
  mounts_.push_back({std::move(prefix), std::move(folder)});
}

std::optional<HttpResponse> StaticFiles::serve(std::string_view path) const {
  for (const Mount& m : mounts_) {
    const auto relative = underPrefix(path, m.prefix);
    if (!relative || !isSafeRelative(*relative)) continue;
    std::filesystem::path file = m.folder / *relative;
    std::error_code ec;
    if (std::filesystem::is_directory(file, ec)) file /= "index.html";
    if (!std::filesystem::is_regular_file(file, ec)) continue;
    auto bytes = readWholeFile(file);
    if (!bytes) continue;
    HttpResponse response;
    response.setHeader("Cache-Control", "no-cache");
    response.setContent(std::move(*bytes), contentTypeFor(file));
    return response;
  }
  return std::nullopt;
}

}  // namespace lad::server
