// Who may hold an event stream and what a locked browser hears on it (how many
// streams one session keeps is the hub's test).
#include <gtest/gtest.h>

#include <string>

#include "server_fixture.h"

namespace lad::server::test {
namespace {

using StreamAccessTest = ServerTest;

TEST_F(StreamAccessTest, OnlyAKnownSessionGetsAStream) {
  for (const std::string cookie : {"", "no-such-session"}) {
    LoopbackClient raw(port_);
    auto res = raw.exchange(streamRequest(cookie));
    ASSERT_TRUE(res) << "no answer to a stream without a valid session: " << cookie;
    EXPECT_EQ(res->status, 401) << res->head;
  }
  StreamReader stream(port_, openSession());
  ASSERT_TRUE(stream.waitFor("retry:"));
  // One Content-Type only: a client that reads the first one must see an event stream.
  const std::string head = stream.text().substr(0, stream.text().find("\r\n\r\n"));
  EXPECT_EQ(countOf(head, "\r\nContent-Type:"), 1u) << head;
  EXPECT_NE(head.find("Content-Type: text/event-stream"), std::string::npos) << head;
}

TEST_F(StreamAccessTest, LockedSessionHearsOnlyItsOwnLock) {
  const std::string open = openSession();  // opened before the lock: stays open until activated
  lockWith("2468");
  const std::string locked = openSession();
  StreamReader openStream(port_, open);
  StreamReader lockedStream(port_, locked);
  ASSERT_TRUE(openStream.waitFor("retry:"));
  ASSERT_TRUE(lockedStream.waitFor("retry:"));

  // A change of the open session's redraws the open browser only.
  ASSERT_EQ(tap(open, "menu:51")->status, 200);
  ASSERT_TRUE(openStream.waitFor(kRefresh));
  // The third wrong code makes the pad wait a second, and the pad comes back with a redraw.
  for (int i = 0; i < 12; ++i) ASSERT_EQ(tap(locked, "lock:1")->status, 200);
  ASSERT_TRUE(lockedStream.waitFor(kRefresh)) << lockedStream.text();
  ASSERT_TRUE(openStream.waitFor(kRefresh, 2)) << openStream.text();

  pushMarker();
  EXPECT_EQ(countOf(beforeMarker(lockedStream), kRefresh), 1u) << lockedStream.text();
}

}  // namespace
}  // namespace lad::server::test
