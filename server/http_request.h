// An HTTP/1.x request as the server reads it, and the parser of its head.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace lad::server {

// Header names compare without regard to case.
bool sameHeaderName(std::string_view a, std::string_view b);

struct HttpRequest {
  std::string method;
  std::string target;  // as sent
  std::string path;    // percent-decoded, without the query
  int minorVersion = 1;
  std::vector<std::pair<std::string, std::string>> headers;
  std::size_t contentLength = 0;
  std::string body;

  // The first header of that name, or "".
  std::string header(std::string_view name) const;
  // HTTP/1.1 keeps the connection unless told to close; HTTP/1.0 only when asked to keep it.
  bool keepAlive() const;
  // The value of one cookie, or "".
  std::string cookie(std::string_view name) const;
};

struct HeadParse {
  enum class Outcome { Incomplete, Complete, Refused };
  Outcome outcome = Outcome::Incomplete;
  std::size_t headBytes = 0;  // Complete: the bytes of the head, blank line included
  int status = 0;             // Refused: the status to answer with
  std::string error;          // Refused: why
};

// The most a request head may take; a longer one is refused with 431.
constexpr std::size_t kMaxHeadBytes = 32 * 1024;

// Reads the head at the start of `bytes` into `request`: request line, headers, and the body's
// length. Incomplete until the blank line has arrived.
HeadParse parseRequestHead(std::string_view bytes, HttpRequest& request);

}  // namespace lad::server
