// The child's day as a browser drives it: sleep kept in step while it is typed, the milk teeth
// ticked against those of the days before, and the feedings: a breast feeding timed on the
// installation's clock, a food with its amount, and a removal.
#include <gtest/gtest.h>

#include "core/ids.h"
#include "health/child_feeding.h"
#include "tests/shell/application_fixture.h"

namespace lad::shell {
namespace {

using namespace std::chrono_literals;

class ChildDayTest : public testing::ApplicationTest {
 protected:
  ChildDayTest() { launchApp(2); }

  // The day editor of the first child at the day `offset` days from today.
  std::unique_ptr<Session> dayEditor(int offset) {
    clock->set(app->context().dates().addDays(today_, offset));
    return todayEditor();
  }
  static std::string targetOf(Session& s, const std::string& icon) {
    return rowWith(s, "icon", icon)["id"].text();
  }
  std::string stored(const std::string& type) { return dayValue(type, newID2(1, 1), today_); }
  // Today's feedings, opened from the day editor.
  std::unique_ptr<Session> feedings() {
    auto s = todayEditor();
    EXPECT_TRUE(tap(*s, "day:feeding").ok());
    return s;
  }
  static std::string caption(Session& s, const std::string& field) {
    return rowWith(s, "field", field)["caption"].text();
  }
  List storedFeedings() {
    return health::loadKormForDate(app->store(), clock->now(), newID2(1, 1));
  }

  Date today_ = clock->now();
};

// The period kept in step is the intervals' test; here a new sleep's start, its readout over
// midnight and what is stored.
TEST_F(ChildDayTest, ASleepOverMidnightIsCountedAndReadOut) {
  auto s = dayEditor(0);
  ASSERT_TRUE(tap(*s, targetOf(*s, "ne-sleep.png")).ok());
  EXPECT_EQ(source(*s, "start"), "10:00") << "a new sleep starts now";
  ASSERT_TRUE(
      act(*s, {"field:start=22:40", "field:end=06:10", "field:interval=01:30", "editor:ok"}));
  const Value sleep = rowWith(*s, "icon", "ne-sleep.png");
  ASSERT_TRUE(sleep["lines"].asList());
  ASSERT_EQ(sleep["lines"].asList()->size(), 1u);
  EXPECT_EQ((*sleep["lines"].asList())[0]["text"].text(), "с 22:40 до 00:10 (01:30)");
  ASSERT_TRUE(tap(*s, "day:close").ok());
  EXPECT_NE(stored("sleep").find("\"interval\""), std::string::npos);
}

TEST_F(ChildDayTest, TeethAreTickedAgainstTheDaysBeforeAndStoredAsChanges) {
  {
    StoreBracket bracket = app->store().connectToBase();
    insertValue(app->store(), bracket, "tooth", "5<tr>6",
                app->context().dates().addDays(today_, -10), newID2(1, 1), true, false);
  }
  auto s = dayEditor(0);
  ASSERT_TRUE(tap(*s, targetOf(*s, "ne-tooth.png")).ok());
  const Value form = s->view();
  const List& teeth = *(*form["rows"].asList())[1]["listdata"].asList();
  ASSERT_EQ(teeth.size(), 20u);
  EXPECT_TRUE(teeth[4]["checked"].boolValue());
  // Tooth 5 fell out and 15 came through; 6 stays.
  ASSERT_TRUE(change(*s, "field:tooth", Value(List{Value("6"), Value("15")})).ok());
  ASSERT_TRUE(tap(*s, "editor:ok").ok());
  EXPECT_EQ(rowWith(*s, "icon", "ne-tooth.png")["text"].text(),
            "Выпал верхний центральный резец (51)\nПрорезался нижний центральный резец (81)");
  ASSERT_TRUE(tap(*s, "day:close").ok());
  EXPECT_EQ(stored("tooth"), "105<tr>15");

  // The next day starts from the teeth after the changes.
  auto next = dayEditor(1);
  ASSERT_TRUE(tap(*next, targetOf(*next, "ne-tooth.png")).ok());
  const Value nextForm = next->view();
  const List& after = *(*nextForm["rows"].asList())[1]["listdata"].asList();
  EXPECT_FALSE(after[4]["checked"].boolValue());
  EXPECT_TRUE(after[14]["checked"].boolValue());
}

TEST_F(ChildDayTest, ABreastFeedingIsTimedOnTheInstallationsClock) {
  auto s = feedings();
  ASSERT_TRUE(tap(*s, "field:add1").ok());
  const EventResult started = tap(*s, "field:startleft");
  ASSERT_TRUE(started.ok());
  EXPECT_TRUE(started.timer) << "the timer ticks every second";
  EXPECT_EQ(started.timerDelay, 1s);
  clock->set(clock->now() + 3min + 15s);

  // Another browser finds the feeding still running.
  auto other = feedings();
  EXPECT_EQ(other->view()["caption"].text(), "Грудное молоко");
  ASSERT_TRUE(tap(*s, "field:startleft").ok());
  EXPECT_EQ(caption(*s, "progress"), "");
  // The right side goes on from what was typed there.
  ASSERT_TRUE(act(*s, {"field:right=00:02", "field:startright"}));
  clock->set(clock->now() + 60s);
  // A running side stops when the feeding is taken.
  ASSERT_TRUE(act(*s, {"editor:ok", "field:add3", "editor:ok"}));
  EXPECT_TRUE(s->view()["message"].asMap()) << "the amount is required";
  ASSERT_TRUE(act(*s, {"message:ok", "field:volume=100", "editor:ok"}));
  EXPECT_TRUE(storedFeedings().empty()) << "nothing is stored before \"Готово\"";

  ASSERT_TRUE(tap(*s, "editor:ok").ok());
  const List saved = storedFeedings();
  ASSERT_EQ(saved.size(), 2u);
  EXPECT_EQ(saved[0]["kotype"].intValue(), 1);
  EXPECT_EQ(saved[0]["kosum"].intValue(), 6) << "3 minutes timed on each side";
}

TEST_F(ChildDayTest, AFormulaNeedsItsProductAndARemovedFeedingGoes) {
  auto s = feedings();
  ASSERT_TRUE(act(*s, {"field:add4", "field:volume=40", "editor:ok", "field:add2",
                       "field:volume=120", "editor:ok"}));
  EXPECT_TRUE(s->view()["message"].asMap()) << "a formula needs its product";
  ASSERT_TRUE(act(*s, {"message:ok", "field:tip=" + newID2(4, 61), "editor:ok"}));
  ASSERT_TRUE(act(*s, {"field:feed0", "popup:1"}));
  EXPECT_EQ(caption(*s, "feed0"), "10:00  Нутрилон 1: 120 мл.");
  ASSERT_TRUE(tap(*s, "editor:ok").ok());
  EXPECT_EQ(storedFeedings().size(), 1u);
}

}  // namespace
}  // namespace lad::shell
