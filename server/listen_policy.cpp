#include "server/listen_policy.h"

#include <algorithm>

namespace lad::server {

bool isLoopbackHost(const std::string& host) {
  if (host == "localhost" || host == "::1") return true;
  const bool dotted = std::all_of(host.begin(), host.end(),
                                  [](char c) { return c == '.' || (c >= '0' && c <= '9'); });
  return dotted && host.starts_with("127.");
}

std::string listenRefusal(const std::string& host, bool passwordSet) {
  if (isLoopbackHost(host) || passwordSet) return {};
  return "refusing to listen on " + host +
         ": other machines may reach the diary only behind the password lock. Open it on this "
         "machine (listen on 127.0.0.1), turn the password on in the main menu, then start "
         "again with --listen " +
         host + ":PORT";
}

}  // namespace lad::server
