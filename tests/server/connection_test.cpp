// The server's connections as raw bytes show them: never held by a client that stops half-way
// through its request, and a body or a head too large refused before it is read.
#include <gtest/gtest.h>

#include <string>

#include "server_fixture.h"

namespace lad::server::test {
namespace {

std::string postHead(std::size_t contentLength) {
  return "POST /api/event HTTP/1.1\r\nHost: 127.0.0.1\r\nContent-Type: application/json\r\n"
         "Content-Length: " +
         std::to_string(contentLength) + "\r\n\r\n";
}

TEST_F(ServerTest, RequestThatStopsHalfWayIsAnsweredNotHeld) {
  // A body announced and never sent, and a head that never ends: the server gives up on both
  // within seconds.
  LoopbackClient silent(port_);
  ASSERT_TRUE(silent.send(postHead(100) + R"({"type":)"));
  LoopbackClient halfHead(port_);
  ASSERT_TRUE(halfHead.send("GET /app.js HTTP/1.1\r\nHost: 127.0.0.1\r\n"));
  auto timedOut = silent.receiveResponse();
  ASSERT_TRUE(timedOut) << "a request whose body never came was held";
  EXPECT_EQ(timedOut->status, 408);
  EXPECT_EQ(timedOut->header("Connection"), "close");
  EXPECT_EQ(statusOf(halfHead.receiveResponse()), 408)
      << "a request whose head never ended was held";

  // A body larger than the server takes is refused at once, before it is sent.
  LoopbackClient large(port_);
  EXPECT_EQ(statusOf(large.exchange(postHead(HttpOptions().maxBodyBytes + 1))), 413);
  // A head too large to read is refused with the parser's own status.
  const std::string hugeHead = "GET / HTTP/1.1\r\nX-Pad: " + std::string(70000, 'x') + "\r\n\r\n";
  EXPECT_EQ(statusOf(LoopbackClient(port_).exchange(hugeHead)), 431);
}

}  // namespace
}  // namespace lad::server::test
