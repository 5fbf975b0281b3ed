// Files of folders served under address prefixes: the web app at "/", its images at "/img".
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "server/http_response.h"

namespace lad::server {

// The media type of a file by its extension; "application/octet-stream" when unknown.
std::string contentTypeFor(const std::filesystem::path& file);

class StaticFiles {
 public:
  // Requests under `prefix` read files of `folder`; later mounts are tried after earlier ones.
  void mount(std::string prefix, std::filesystem::path folder);
  // The file that a decoded request path names, or nullopt when there is none (or the path
  // tries to leave its folder). A folder's file is its index.html.
  std::optional<HttpResponse> serve(std::string_view path) const;

 private:
  struct Mount {
    std::string prefix;
    std::filesystem::path folder;
  };
  std::vector<Mount> mounts_;
};

}  // namespace lad::server
