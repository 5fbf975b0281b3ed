// Who may hold an event stream, how many, and what a locked browser hears on it (how many
// streams one session keeps is the hub's test).
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

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
    EXPECT_EQ(res->header("Content-Type"), "application/json");
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

TEST_F(StreamAccessTest, ManyOpenStreamsLeaveTapsAnswered) {
  constexpr int kStreams = 200;
  constexpr int kStrangers = 30;  // streams asked for without a session
  constexpr auto kPatience = std::chrono::seconds(2);
  std::vector<std::string> sessions;
  for (int i = 0; i < kStreams / 3 + 1; ++i) sessions.push_back(openSession());

  std::vector<std::unique_ptr<LoopbackClient>> streams;
  for (int i = 0; i < kStreams + kStrangers; ++i) {
    streams.push_back(std::make_unique<LoopbackClient>(port_, kPatience));
    ASSERT_TRUE(streams.back()->connected());
    ASSERT_TRUE(streams.back()->send(streamRequest(i < kStreams ? sessions[i / 3] : "")));
  }
  // The last of each kind has been answered as it should.
  EXPECT_NE(streams[kStreams - 1]->receiveOnce().find("retry:"), std::string::npos);
  auto refused = streams.back()->receiveResponse();
  ASSERT_TRUE(refused) << "a stream without a session was not answered";
  EXPECT_EQ(refused->status, 401);

  auto c = client();
  c->set_read_timeout(kPatience);
  auto view = c->Get("/api/view", sessionHeaders(sessions[0]));
  ASSERT_TRUE(view) << "the view was not answered with " << kStreams << " streams open";
  EXPECT_EQ(view->status, 200);
  auto tapped = c->Post("/api/event", sessionHeaders(sessions[0]),
                        R"({"type":"tap","target":"menu:51"})", "application/json");
  ASSERT_TRUE(tapped) << "the tap was not answered with " << kStreams << " streams open";
  EXPECT_EQ(tapped->status, 200);
}

}  // namespace
}  // namespace lad::server::test
