#include "server/event_hub.h"

#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <vector>

namespace lad::server {
namespace {

std::vector<std::string> dataOf(const std::vector<PushMessage>& messages) {
  std::vector<std::string> data;
  for (const auto& m : messages) data.push_back(m.data);
  return data;
}

TEST(EventHubTest, AStreamThatLeftHearsNoMore) {
  EventHub hub;
  auto a = hub.subscribe("A", {});
  auto b = hub.subscribe("B", {});
  hub.unsubscribe(b);
  hub.publish({"refresh", "{}"});
  EXPECT_EQ(a->take().size(), 1u);
  EXPECT_TRUE(b->take().empty());
}

TEST(EventHubTest, SessionKeepsItsNewestStreams) {
  EventHub hub;
  std::vector<std::shared_ptr<Subscriber>> streams;
  for (std::size_t i = 0; i <= EventHub::kStreamsPerSession; ++i)
    streams.push_back(hub.subscribe("A", {}));
  auto other = hub.subscribe("B", {});
  EXPECT_TRUE(streams[0]->closed());
  for (std::size_t i = 1; i < streams.size(); ++i) EXPECT_FALSE(streams[i]->closed());
  EXPECT_FALSE(other->closed());
  hub.publish({"refresh", "{}"});
  EXPECT_TRUE(streams[0]->take().empty());

  hub.closeSession("A");
  for (const auto& s : streams) EXPECT_TRUE(s->closed());
  EXPECT_FALSE(other->closed());
}

TEST(EventHubTest, SlowReaderKeepsOnlyTheNewestMessages) {
  EventHub hub;
  auto s = hub.subscribe("A", {});
  for (int i = 0; i < 100; ++i) hub.publish({"notice", std::to_string(i)});
  const std::vector<std::string> got = dataOf(s->take());
  ASSERT_FALSE(got.empty());
  EXPECT_LT(got.size(), 100u);
  // What is kept is the most recent run of messages, in order.
  for (std::size_t i = 0; i < got.size(); ++i)
    EXPECT_EQ(got[i], std::to_string(100 - got.size() + i));
}

TEST(EventHubTest, CloseEndsOpenAndLaterStreams) {
  EventHub hub;
  std::atomic<int> wakes = 0;
  auto s = hub.subscribe("A", [&] { ++wakes; });
  hub.close();
  EXPECT_TRUE(s->closed());
  EXPECT_EQ(wakes, 1);  // the writer learns of it at once

  auto late = hub.subscribe("A", {});
  EXPECT_TRUE(late->closed());
  hub.publish({"refresh", "{}"});
  EXPECT_TRUE(late->take().empty());
}

}  // namespace
}  // namespace lad::server
