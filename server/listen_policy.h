// Who may reach the server: this machine always; other hosts only once the lock has a code,
// since the lock is then all that stands between the network and the diary.
#pragma once

#include <string>

namespace lad::server {

// localhost, ::1 or an IPv4 address in 127.0.0.0/8.
bool isLoopbackHost(const std::string& host);
// Why listening on `host` is refused; empty when it is allowed.
std::string listenRefusal(const std::string& host, bool passwordSet);

}  // namespace lad::server
