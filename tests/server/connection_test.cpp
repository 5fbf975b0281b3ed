// The server's connections as raw bytes show them: kept alive, answered in one piece, and never
// held by a client that stops half-way through its request.
#include <gtest/gtest.h>

#include <string>

#include "server_fixture.h"

namespace lad::server::test {
namespace {

constexpr char kGetScript[] = "GET /app.js HTTP/1.1\r\nHost: 127.0.0.1\r\n\r\n";

std::string postHead(std::size_t contentLength) {
  return "POST /api/event HTTP/1.1\r\nHost: 127.0.0.1\r\nContent-Type: application/json\r\n"
         "Content-Length: " +
         std::to_string(contentLength) + "\r\n\r\n";
}

TEST_F(ServerTest, KeptAliveConnectionGetsEachResponseInOnePiece) {
  LoopbackClient raw(port_);
  auto first = raw.exchange(kGetScript);
  ASSERT_TRUE(first);
  EXPECT_EQ(first->body, kAppJs);
  // A response written in pieces leaves its last piece waiting for the client's delayed
  // acknowledgement; written whole, the first receive brings all of it.
  for (int i = 0; i < 3; ++i) {
    ASSERT_TRUE(raw.send(kGetScript));
    const std::string got = raw.receiveOnce();
    ASSERT_TRUE(got.starts_with("HTTP/1.1 200")) << got;
    EXPECT_TRUE(got.ends_with(kAppJs)) << "request " << i + 2 << " answered in pieces: " << got;
  }
  // Two requests sent at once are answered in order.
  ASSERT_TRUE(raw.send(std::string(kGetScript) + "GET /missing HTTP/1.1\r\nHost: x\r\n\r\n"));
  auto script = raw.receiveResponse();
  auto missing = raw.receiveResponse();
  ASSERT_TRUE(script && missing);
  EXPECT_EQ(script->status, 200);
  EXPECT_EQ(missing->status, 404);
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
  auto headTimedOut = halfHead.receiveResponse();
  ASSERT_TRUE(headTimedOut) << "a request whose head never ended was held";
  EXPECT_EQ(headTimedOut->status, 408);

  // A body larger than the server takes is refused at once, before it is sent.
  LoopbackClient large(port_);
  ASSERT_TRUE(large.send(postHead(HttpOptions().maxBodyBytes + 1)));
  auto tooLarge = large.receiveResponse();
  ASSERT_TRUE(tooLarge);
  EXPECT_EQ(tooLarge->status, 413);

  // A head too large to read is refused with a clear status.
  LoopbackClient huge(port_);
  auto headTooLarge =
      huge.exchange("GET / HTTP/1.1\r\nX-Pad: " + std::string(70000, 'x') + "\r\n\r\n");
  ASSERT_TRUE(headTooLarge);
  EXPECT_EQ(headTooLarge->status, 431);
}

}  // namespace
}  // namespace lad::server::test
