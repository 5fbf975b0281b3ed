// The event streams of /api/events, read by real clients over loopback.
#include <gtest/gtest.h>

#include <string>

#include "server_fixture.h"

namespace lad::server::test {
namespace {

using EventStreamTest = ServerTest;

TEST_F(EventStreamTest, ChangesRefreshEveryStreamAndADelayedRedrawComesAgain) {
  const std::string tapper = openSession();  // has no stream of its own
  const std::string b = openSession();
  StreamReader streamA(port_, openSession());
  StreamReader streamB(port_, b);
  ASSERT_TRUE(streamA.waitFor("retry:"));
  ASSERT_TRUE(streamB.waitFor("retry:"));

  // One change, one refresh per stream; a refused event sends none.
  ASSERT_EQ(tap(tapper, "menu:51")->status, 200);
  ASSERT_TRUE(streamA.waitFor(kRefresh)) << streamA.text();
  ASSERT_TRUE(streamB.waitFor(kRefresh)) << streamB.text();
  EXPECT_EQ(tap(tapper, "menu:999")->status, 400);
  pushMarker();
  for (StreamReader* s : {&streamA, &streamB})
    EXPECT_EQ(countOf(beforeMarker(*s), kRefresh), 1u) << s->text();

  // The refresh of the change itself, then the later one that a main-loop timer sends, reach
  // the tapper's own stream too.
  ASSERT_EQ(statusOf(tap(b, "menu:55")), 200);
  ASSERT_TRUE(streamA.waitFor(kRefresh, 3)) << streamA.text();
  ASSERT_TRUE(streamB.waitFor(kRefresh, 3)) << streamB.text();
  pushMarker();
  for (StreamReader* s : {&streamA, &streamB})
    EXPECT_EQ(countOf(beforeMarker(*s, 2), kRefresh), 3u) << s->text();
}

TEST_F(EventStreamTest, StopEndsOpenStreamsAndRun) {
  StreamReader stream(port_, openSession());
  ASSERT_TRUE(stream.waitFor("retry:"));

  EXPECT_TRUE(stopServer()) << "run() did not return after stop()";
  // Ended either with its last chunk or by the closed connection, depending on whether the
  // handler was inside the stream or between two writes when the server stopped.
  EXPECT_TRUE(stream.waitForEnd()) << "the stream stayed open after stop()";
}

}  // namespace
}  // namespace lad::server::test
