// A plain TCP client of a server on this machine, for tests and benchmarks that must see exactly
// the bytes the server writes and when: raw requests out, whole responses back.
#pragma once

#include <arpa/inet.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <chrono>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>

namespace lad::testing {

struct RawResponse {
  int status = 0;
  std::string head;  // status line and headers, up to the blank line
  std::string body;

  // The value of the first header of that name (any case), or "".
  std::string header(std::string_view name) const {
    const auto lower = [](std::string text) {
      for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
      return text;
    };
    const std::string key = "\r\n" + lower(std::string(name)) + ":";
    const std::size_t found = lower(head).find(key);
    if (found == std::string::npos) return {};
    const std::size_t at = std::min(head.find_first_not_of(' ', found + key.size()), head.size());
    return head.substr(at, head.find("\r\n", at) - at);
  }
};

class LoopbackClient {
 public:
  // Every receive gives up after `timeout`, so that a server that holds back never hangs a test.
  explicit LoopbackClient(int port, std::chrono::milliseconds timeout = std::chrono::seconds(15)) {
    fd_ = ::socket(AF_INET, SOCK_STREAM, 0);
    timeval tv{static_cast<time_t>(timeout.count() / 1000),
               static_cast<suseconds_t>(timeout.count() % 1000 * 1000)};
    ::setsockopt(fd_, SOL_SOCKET, SO_RCVTIMEO, &tv, sizeof tv);
    ::setsockopt(fd_, SOL_SOCKET, SO_SNDTIMEO, &tv, sizeof tv);
    int one = 1;
    ::setsockopt(fd_, IPPROTO_TCP, TCP_NODELAY, &one, sizeof one);
    sockaddr_in addr{};
    addr.sin_family = AF_INET;
    addr.sin_port = htons(static_cast<std::uint16_t>(port));
    addr.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    ::connect(fd_, reinterpret_cast<sockaddr*>(&addr), sizeof addr);
  }
  ~LoopbackClient() { ::close(fd_); }
  LoopbackClient(const LoopbackClient&) = delete;
  LoopbackClient& operator=(const LoopbackClient&) = delete;

  // True once a receive found the connection closed by the server.
  bool closedByPeer() const { return closedByPeer_; }

  bool send(std::string_view bytes) {
    while (!bytes.empty()) {
      const ssize_t n = ::send(fd_, bytes.data(), bytes.size(), MSG_NOSIGNAL);
      if (n <= 0) return false;
      bytes.remove_prefix(static_cast<std::size_t>(n));
    }
    return true;
  }

  // What one receive brings: the bytes that have arrived, "" on timeout or a closed connection.
  std::string receiveOnce() {
    char buffer[65536];
    const ssize_t n = ::recv(fd_, buffer, sizeof buffer, 0);
    if (n == 0) closedByPeer_ = true;
    return n > 0 ? std::string(buffer, static_cast<std::size_t>(n)) : std::string();
  }

  // One whole response whose body has a Content-Length; nullopt on timeout or close.
  std::optional<RawResponse> receiveResponse() {
    std::size_t headEnd;
    while ((headEnd = pending_.find("\r\n\r\n")) == std::string::npos)
      if (!receiveMore()) return std::nullopt;
    RawResponse res;
    res.head = pending_.substr(0, headEnd);
    pending_.erase(0, headEnd + 4);
    if (res.head.size() > 12) res.status = std::atoi(res.head.c_str() + 9);
    const std::size_t length = std::strtoul(res.header("Content-Length").c_str(), nullptr, 10);
    while (pending_.size() < length)
      if (!receiveMore()) return std::nullopt;
    res.body = pending_.substr(0, length);
    pending_.erase(0, length);
    return res;
  }

  // Sends a request and reads its response.
  std::optional<RawResponse> exchange(std::string_view request) {
    if (!send(request)) return std::nullopt;
    return receiveResponse();
  }

 private:
  bool receiveMore() {
    const std::string more = receiveOnce();
    pending_ += more;
    return !more.empty();
  }

  int fd_ = -1;
  bool closedByPeer_ = false;
  std::string pending_;
};

}  // namespace lad::testing
