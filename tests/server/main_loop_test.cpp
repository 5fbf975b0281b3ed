#include "server/main_loop.h"

#include <gtest/gtest.h>

#include <chrono>
#include <numeric>
#include <stdexcept>
#include <thread>
#include <vector>

#include "tests/support/wait_counter.h"

namespace lad::server {
namespace {

using namespace std::chrono_literals;

TEST(MainLoopTest, RunsPostedTasksInOrderOnOneOtherThread) {
  MainLoop loop;
  EXPECT_FALSE(loop.onMainThread());
  std::vector<int> order, expected(200);
  std::iota(expected.begin(), expected.end(), 0);
  bool allOnMainThread = true;
  for (int i : expected)
    ASSERT_TRUE(loop.post([&, i] {
      order.push_back(i);
      allOnMainThread = allOnMainThread && loop.onMainThread();
    }));
  // A call queues behind the posts, so they have all run when it returns.
  loop.call([] { return 0; });
  EXPECT_EQ(order, expected);
  EXPECT_TRUE(allOnMainThread);
}

TEST(MainLoopTest, CallReturnsResultsAndPassesExceptionsBack) {
  MainLoop loop;
  EXPECT_THROW(loop.call([]() -> int { throw std::logic_error("broken task"); }), std::logic_error);
  // The loop survives the failure and keeps serving.
  EXPECT_EQ(loop.call([] { return 7; }), 7);

  ASSERT_TRUE(loop.post([] { throw std::runtime_error("posted task fails"); }));
  ASSERT_TRUE(loop.post([] { throw 42; }));  // not even a std::exception
  // A call made from the main thread itself runs at once instead of waiting for itself.
  EXPECT_EQ(loop.call([&] { return loop.call([] { return 5; }); }), 5);
  int after = 0;
  ASSERT_TRUE(loop.post([&] { after = 1; }));
  EXPECT_EQ(loop.call([&] { return after; }), 1);
}

// Reminders and cloud polls ride on repeating timers, which must run on the main thread.
TEST(MainLoopTest, RepeatingTimerComesBackOnTheMainThread) {
  MainLoop loop;
  testing::WaitCounter onMainThread;
  const auto tick = [&] {
    if (loop.onMainThread()) onMainThread.bump();
  };
  loop.addTimer(5ms, tick, true);
  EXPECT_TRUE(onMainThread.waitAtLeast(3));
}

TEST(MainLoopTest, StopRunsWhatWasPostedThenRefusesWork) {
  MainLoop loop;
  int ran = 0;
  bool farTimerRan = false;
  // Holds the thread up so that the tasks behind it are still queued when stop() comes.
  ASSERT_TRUE(loop.post([] { std::this_thread::sleep_for(50ms); }));
  for (int i = 0; i < 20; ++i) ASSERT_TRUE(loop.post([&] { ++ran; }));
  loop.addTimer(1h, [&] { farTimerRan = true; });
  loop.stop();
  EXPECT_EQ(ran, 20);
  EXPECT_FALSE(farTimerRan);

  EXPECT_FALSE(loop.post([&] { ++ran; }));
  EXPECT_THROW(loop.call([] { return 1; }), std::runtime_error);
  loop.stop();  // a second stop is harmless
  EXPECT_EQ(ran, 20);
}

}  // namespace
}  // namespace lad::server
