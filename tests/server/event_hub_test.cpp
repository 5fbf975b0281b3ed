#include "server/event_hub.h"

#include <gtest/gtest.h>

#include <chrono>
#include <future>
#include <string>
#include <thread>
#include <vector>

namespace lad::server {
namespace {

using namespace std::chrono_literals;

TEST(EventHubTest, PublishesToEveryOpenStreamUntilItLeaves) {
  EventHub hub;
  auto a = hub.subscribe();
  auto b = hub.subscribe();
  EXPECT_FALSE(a->next(0ms));

  hub.publish({"notice", "{\"n\":1}"});
  for (const auto& s : {a, b}) {
    auto m = s->next(0ms);
    ASSERT_TRUE(m);
    EXPECT_EQ(m->event, "notice");
    EXPECT_EQ(m->data, "{\"n\":1}");
    EXPECT_FALSE(s->next(0ms));  // each message once
  }

  hub.unsubscribe(b);
  hub.publish({"refresh", "{}"});
  EXPECT_TRUE(a->next(0ms));
  EXPECT_FALSE(b->next(0ms));
}

TEST(EventHubTest, SlowReaderKeepsOnlyTheNewestMessages) {
  EventHub hub;
  auto s = hub.subscribe();
  for (int i = 0; i < 100; ++i) hub.publish({"notice", std::to_string(i)});
  std::vector<std::string> got;
  while (auto m = s->next(0ms)) got.push_back(m->data);
  ASSERT_FALSE(got.empty());
  EXPECT_LT(got.size(), 100u);
  // What is kept is the most recent run of messages, in order.
  for (std::size_t i = 0; i < got.size(); ++i)
    EXPECT_EQ(got[i], std::to_string(100 - got.size() + i));
}

TEST(EventHubTest, CloseEndsWaitingAndLaterStreams) {
  EventHub hub;
  auto s = hub.subscribe();
  std::promise<void> started;
  auto waiting = std::async(std::launch::async, [&] {
    started.set_value();
    return s->next(30s);  // returns early only if close() wakes it
  });
  started.get_future().wait();
  std::this_thread::sleep_for(50ms);  // lets the reader reach its wait
  hub.close();
  ASSERT_EQ(waiting.wait_for(15s), std::future_status::ready);
  EXPECT_FALSE(waiting.get());
  EXPECT_TRUE(s->closed());

  auto late = hub.subscribe();
  EXPECT_TRUE(late->closed());
  hub.publish({"refresh", "{}"});
  EXPECT_FALSE(late->next(0ms));
}

}  // namespace
}  // namespace lad::server
