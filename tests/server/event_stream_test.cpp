// The event streams of /api/events, read by real clients over loopback.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "server_fixture.h"

namespace lad::server::test {
namespace {

// Everything the stream had received before the marker that the test pushed after its events.
// The hub delivers in order, so whatever reached the stream earlier comes before the marker.
std::string beforeMarker(StreamReader& stream) {
  EXPECT_TRUE(stream.waitFor(kMarker)) << stream.text();
  const std::string text = stream.text();
  return text.substr(0, text.find(kMarker));
}

using EventStreamTest = ServerTest;

TEST_F(EventStreamTest, ChangeInOneSessionRefreshesTheStreams) {
  const std::string tapper = openSession();
  StreamReader streamA(port_, openSession());
  StreamReader streamB(port_, openSession());
  ASSERT_TRUE(streamA.waitFor("retry:"));
  ASSERT_TRUE(streamB.waitFor("retry:"));

  // A session that has no stream of its own changes a switch.
  auto tapped = tap(tapper, "menu:51");
  ASSERT_TRUE(tapped);
  ASSERT_EQ(tapped->status, 200) << tapped->body;
  ASSERT_TRUE(streamA.waitFor(kRefresh)) << streamA.text();
  ASSERT_TRUE(streamB.waitFor(kRefresh)) << streamB.text();

  // One change, one refresh per stream; a refused event sends none.
  auto refused = tap(tapper, "menu:999");
  ASSERT_TRUE(refused);
  EXPECT_EQ(refused->status, 400);
  pushMarker();
  EXPECT_EQ(countOf(beforeMarker(streamA), kRefresh), 1u) << streamA.text();
  EXPECT_EQ(countOf(beforeMarker(streamB), kRefresh), 1u) << streamB.text();
}

TEST_F(EventStreamTest, DelayedRedrawReachesEveryStreamIncludingTheTappers) {
  const std::string b = openSession();
  StreamReader streamA(port_, openSession());
  StreamReader streamB(port_, b);  // the tapper's own
  ASSERT_TRUE(streamA.waitFor("retry:"));
  ASSERT_TRUE(streamB.waitFor("retry:"));

  const Json before = rowOf(Json::parse(client()->Get("/api/view")->body), "menu:55");
  auto tapped = tap(b, "menu:55");
  ASSERT_TRUE(tapped);
  ASSERT_EQ(tapped->status, 200) << tapped->body;
  EXPECT_NE(rowOf(Json::parse(tapped->body), "menu:55")["checked"], before["checked"]);

  // The refresh of the change itself, then the later one that a main-loop timer sends.
  ASSERT_TRUE(streamA.waitFor(kRefresh, 2)) << streamA.text();
  ASSERT_TRUE(streamB.waitFor(kRefresh, 2)) << streamB.text();
  pushMarker();
  EXPECT_EQ(countOf(beforeMarker(streamA), kRefresh), 2u) << streamA.text();
  EXPECT_EQ(countOf(beforeMarker(streamB), kRefresh), 2u) << streamB.text();
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
