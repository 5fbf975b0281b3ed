// Fuzz target of the server's request reading: the head parser, and a connection that takes the
// bytes in two pieces and answers every request they hold. Traps when an invariant breaks.
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "server/connection.h"
#include "server/http_request.h"

namespace {

using lad::server::Connection;
using lad::server::HeadParse;

void check(bool invariant) {
  if (!invariant) __builtin_trap();
}

void parseHead(std::string_view bytes) {
  lad::server::HttpRequest request;
  const HeadParse head = lad::server::parseRequestHead(bytes, request);
  if (head.outcome != HeadParse::Outcome::Complete) return;
  check(head.headBytes <= bytes.size());
  check(bytes.substr(0, head.headBytes).ends_with("\r\n\r\n"));
  check(request.target.starts_with('/'));
  check(request.path.find('\0') == std::string_view::npos);
}

// Every request a connection yields is complete: its body has the announced length.
int feed(Connection& connection, std::string_view bytes, Connection::Clock::time_point now) {
  int requests = 0;
  auto request = connection.receive(bytes, now);
  while (request) {
    check(request->body.size() == request->contentLength);
    ++requests;
    request = connection.respond(lad::server::HttpResponse(), now);
  }
  return requests;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  parseHead(bytes);

  const lad::server::ConnectionLimits limits{4096};
  const auto now = Connection::Clock::now();
  Connection connection(limits, now);
  const int requests = feed(connection, bytes.substr(0, size / 2), now) +
                       feed(connection, bytes.substr(size / 2), now);
  // A request takes at least "X / HTTP/1.1" and the blank line.
  check(static_cast<std::size_t>(requests) * 16 <= size);
  connection.tick(now + std::chrono::hours(1));
  return 0;
}
