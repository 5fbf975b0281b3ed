// The child's day as a browser drives it: sleep kept in step while it is typed, and the milk
// teeth ticked against those of the days before.
#include <gtest/gtest.h>

#include "core/ids.h"
#include "shell/session.h"
#include "store/records.h"
#include "store/store.h"
#include "tests/shell/application_fixture.h"

namespace lad::shell {
namespace {

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
  std::string stored(int offset, const std::string& type) {
    StoreBracket bracket = app->store().connectToBase();
    return getDateValue(app->store(), bracket, app->context().dates().addDays(today_, offset), type,
                        newID2(1, 1));
  }

  Date today_ = clock->now();
};

TEST_F(ChildDayTest, ASleepOverMidnightIsCountedAndReadOut) {
  auto s = dayEditor(0);
  ASSERT_TRUE(tap(*s, targetOf(*s, "ne-sleep.png")).ok());
  EXPECT_EQ(s->view()["caption"].text(), "Сон");
  EXPECT_EQ(source(*s, "start"), "10:00") << "a new sleep starts now";
  ASSERT_TRUE(change(*s, "field:start", Value("22:40")).ok());
  ASSERT_TRUE(change(*s, "field:end", Value("06:10")).ok());
  EXPECT_EQ(source(*s, "interval"), "07:30");
  ASSERT_TRUE(change(*s, "field:interval", Value("01:30")).ok());
  EXPECT_EQ(source(*s, "end"), "00:10");
  ASSERT_TRUE(tap(*s, "editor:ok").ok());
  const Value sleep = rowWith(*s, "icon", "ne-sleep.png");
  ASSERT_TRUE(sleep["lines"].asList());
  ASSERT_EQ(sleep["lines"].asList()->size(), 1u);
  EXPECT_EQ((*sleep["lines"].asList())[0]["text"].text(), "с 22:40 до 00:10 (01:30)");
  ASSERT_TRUE(tap(*s, "day:close").ok());
  EXPECT_NE(stored(0, "sleep").find("\"interval\""), std::string::npos);
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
  EXPECT_EQ(form["caption"].text(), "Молочные зубы");
  const List& teeth = *(*form["rows"].asList())[1]["listdata"].asList();
  ASSERT_EQ(teeth.size(), 20u);
  EXPECT_EQ(teeth[4]["caption"].text(), "верхний центральный резец (51)");
  EXPECT_TRUE(teeth[4]["checked"].boolValue());
  EXPECT_FALSE(teeth[14]["checked"].boolValue());
  // Tooth 5 fell out and 15 came through; 6 stays.
  ASSERT_TRUE(change(*s, "field:tooth", Value(List{Value("6"), Value("15")})).ok());
  ASSERT_TRUE(tap(*s, "editor:ok").ok());
  EXPECT_EQ(rowWith(*s, "icon", "ne-tooth.png")["text"].text(),
            "Выпал верхний центральный резец (51)\nПрорезался нижний центральный резец (81)");
  ASSERT_TRUE(tap(*s, "day:close").ok());
  EXPECT_EQ(stored(0, "tooth"), "105<tr>15");

  // The next day starts from the teeth after the changes.
  auto next = dayEditor(1);
  ASSERT_TRUE(tap(*next, targetOf(*next, "ne-tooth.png")).ok());
  const Value nextForm = next->view();
  const List& after = *(*nextForm["rows"].asList())[1]["listdata"].asList();
  EXPECT_FALSE(after[4]["checked"].boolValue());
  EXPECT_TRUE(after[5]["checked"].boolValue());
  EXPECT_TRUE(after[14]["checked"].boolValue());
}

}  // namespace
}  // namespace lad::shell
