// The feedings of a child's day as a browser drives them: a breast feeding timed on the
// installation's clock, a food with its amount, and a removal.
#include <gtest/gtest.h>

#include "core/ids.h"
#include "health/child_feeding.h"
#include "shell/session.h"
#include "tests/shell/application_fixture.h"

namespace lad::shell {
namespace {

using namespace std::chrono_literals;

class FeedingScreenTest : public testing::ApplicationTest {
 protected:
  FeedingScreenTest() { launchApp(2); }

  std::unique_ptr<Session> feedings() {
    auto s = todayEditor();
    EXPECT_TRUE(tap(*s, "day:feeding").ok());
    return s;
  }
  static std::string caption(Session& s, const std::string& field) {
    return rowWith(s, "field", field)["caption"].text();
  }
  List stored() { return loadKormForDate(app->store(), clock->now(), newID2(1, 1)); }
};

TEST_F(FeedingScreenTest, ABreastFeedingIsTimedOnTheInstallationsClock) {
  auto s = feedings();
  EXPECT_EQ(s->view()["caption"].text(), "Кормление");
  ASSERT_TRUE(tap(*s, "field:add1").ok());
  const EventResult started = tap(*s, "field:startleft");
  ASSERT_TRUE(started.ok());
  EXPECT_TRUE(started.timer) << "the timer ticks every second";
  EXPECT_EQ(started.timerDelay, 1s);
  clock->set(clock->now() + 3min + 15s);
  EXPECT_EQ(caption(*s, "progress"), "Идет кормление левой грудью ...\n0:03:15");
  EXPECT_EQ(caption(*s, "startleft"), "Стоп");

  // Another browser finds the feeding still running.
  auto other = feedings();
  EXPECT_EQ(other->view()["caption"].text(), "Грудное молоко");
  ASSERT_TRUE(tap(*s, "field:startleft").ok());
  EXPECT_EQ(source(*s, "left"), "00:03");
  EXPECT_EQ(caption(*s, "progress"), "");
  // The right side goes on from what was typed there.
  ASSERT_TRUE(change(*s, "field:right", Value("00:02")).ok());
  ASSERT_TRUE(tap(*s, "field:startright").ok());
  clock->set(clock->now() + 60s);
  ASSERT_TRUE(tap(*s, "editor:ok").ok()) << "a running side stops when the feeding is taken";
  ASSERT_TRUE(tap(*s, "field:add3").ok());
  ASSERT_TRUE(tap(*s, "editor:ok").ok());
  EXPECT_TRUE(s->view()["message"].asMap()) << "the amount is required";
  ASSERT_TRUE(tap(*s, "message:ok").ok());
  ASSERT_TRUE(change(*s, "field:volume", Value("100")).ok());
  ASSERT_TRUE(tap(*s, "editor:ok").ok());
  EXPECT_TRUE(stored().empty()) << "nothing is stored before \"Готово\"";

  ASSERT_TRUE(tap(*s, "editor:ok").ok());
  const List saved = stored();
  ASSERT_EQ(saved.size(), 2u);
  EXPECT_EQ(saved[0]["kotype"].intValue(), 1);
  EXPECT_EQ(saved[0]["kosum"].intValue(), 6) << "3 minutes timed on each side";
  EXPECT_EQ(s->view()["kind"].text(), "dayEditor");
}

TEST_F(FeedingScreenTest, AFormulaNeedsItsProductAndARemovedFeedingGoes) {
  auto s = feedings();
  ASSERT_TRUE(tap(*s, "field:add4").ok());
  ASSERT_TRUE(change(*s, "field:volume", Value("40")).ok());
  ASSERT_TRUE(tap(*s, "editor:ok").ok());
  ASSERT_TRUE(tap(*s, "field:add2").ok());
  ASSERT_TRUE(change(*s, "field:volume", Value("120")).ok());
  ASSERT_TRUE(tap(*s, "editor:ok").ok());
  EXPECT_TRUE(s->view()["message"].asMap()) << "a formula needs its product";
  ASSERT_TRUE(tap(*s, "message:ok").ok());
  ASSERT_TRUE(change(*s, "field:tip", Value(newID2(4, 61))).ok());
  ASSERT_TRUE(tap(*s, "editor:ok").ok());
  EXPECT_EQ(caption(*s, "feed1"), "10:00  Нутрилон 1: 120 мл.");
  ASSERT_TRUE(tap(*s, "field:feed0").ok());
  ASSERT_TRUE(tap(*s, "popup:1").ok());
  EXPECT_EQ(caption(*s, "feed0"), "10:00  Нутрилон 1: 120 мл.");
  ASSERT_TRUE(tap(*s, "editor:ok").ok());
  EXPECT_EQ(stored().size(), 1u);
}

}  // namespace
}  // namespace lad::shell
