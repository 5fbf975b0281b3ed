#include "shell/day_schedule_page.h"

#include <gtest/gtest.h>

#include "core/ids.h"
#include "shell/editor/editor_view.h"
#include "store/profiles.h"
#include "store/values/regimen.h"
#include "tests/fixtures/diary_generator.h"
#include "tests/shell/application_fixture.h"

namespace lad::shell {
namespace {

const std::string kGid = "SCHEDULE-PAGE";

class DaySchedulePageTest : public lad::testing::ApplicationTest {
 protected:
  void SetUp() override {
    launchApp(1);
    const DateCodec& dates = app->context().dates();
    today = dates.noTime(clock->now());
    lad::testing::addPregnancy(app->store(), kGid, dates.addDays(today, -100), "60");
    Regimen course;
    course.pillname = newID2(4, 4);
    course.pilldoza = "1<td>шт.";
    course.pillinter = "2<td>раз в день";
    course.pilleat = newID2(4, 16);  // "Перед едой"
    StoreBracket bracket = app->store().connectToBase();
    insertValue(app->store(), bracket, "pills", "[" + course.toValue().toJson() + "]", today, kGid,
                true, false);
  }
  // The schedule node of the page's view.
  static Value schedule(DaySchedulePage& page) {
    return lad::testing::nth(page.view()["children"], 0);
  }
  // Each row as "style right: kind text; ...".
  static std::vector<std::string> rows(const Value& node) {
    std::vector<std::string> out;
    for (const Value& row : *node["rows"].asList()) {
      std::string text = row["style"].text() + " " + row["right"].text() + ":";
      for (const Value& e : *row["entries"].asList())
        text += " " + std::to_string(e["kind"].intValue()) + " " + e["text"].text() + ";";
      out.push_back(text);
    }
    return out;
  }

  Date today;
  lad::testing::RecordingHost host;
  DiaryState state;
};

TEST_F(DaySchedulePageTest, PaintsTheDayAndMovesToTheDaysAround) {
  DaySchedulePage page(*app, host, kGid, state, true);
  Value node = schedule(page);
  const DateCodec& dates = app->context().dates();
  // The rows themselves are the schedule's; the page draws them with their style and kind.
  EXPECT_EQ(node["day"]["caption"].text(), dates.dateToString(today, "dd MMMM yyyy"));
  EXPECT_EQ(rows(node)[2], "relation Перед едой: 23 Арбидол: 1 штука ;");

  EXPECT_TRUE(page.tap(node["day"]["forward"]["id"].text()).ok());
  node = schedule(page);
  EXPECT_EQ(node["day"]["caption"].text(),
            dates.dateToString(dates.addDays(today, 1), "dd MMMM yyyy"));
  EXPECT_EQ(rows(node)[1], "plain : 0 Приема лекарств и процедур в этом дне нет;");

  // The day stays with the session's state while the page is built again, until the menu opens
  // the page anew.
  DaySchedulePage rebuilt(*app, host, kGid, state, false);
  EXPECT_EQ(schedule(rebuilt)["day"]["caption"].text(),
            dates.dateToString(dates.addDays(today, 1), "dd MMMM yyyy"));
  EXPECT_TRUE(rebuilt.tap(node["day"]["back"]["id"].text()).ok());
  EXPECT_TRUE(rebuilt.tap(node["day"]["back"]["id"].text()).ok());
  EXPECT_EQ(schedule(rebuilt)["day"]["caption"].text(),
            dates.dateToString(dates.addDays(today, -1), "dd MMMM yyyy"));
  DaySchedulePage fromMenu(*app, host, kGid, state, true);
  EXPECT_EQ(schedule(fromMenu)["day"]["caption"].text(), dates.dateToString(today, "dd MMMM yyyy"));
  EXPECT_FALSE(page.tap("nothing").ok());
}

TEST_F(DaySchedulePageTest, TheMealTimesDialogStoresOnlyClockTimes) {
  DaySchedulePage page(*app, host, kGid, state, true);
  ASSERT_TRUE(page.tap(schedule(page)["meals"]["id"].text()).ok());
  ASSERT_TRUE(host.pushed);
  for (const char* bad : {"7:30", "24:00", "07.30", ""}) {
    EXPECT_TRUE(host.pushed->change(fieldTarget("time1"), Value(bad)).ok());
    EXPECT_EQ(host.messages.back(), "Поле 'Укажите время завтрака' не заполнено!") << bad;
  }
  EXPECT_TRUE(host.pushed->change(fieldTarget("time5"), Value("17:15")).ok());
  EXPECT_TRUE(host.pushed->change(fieldTarget("time3"), Value("23:58")).ok());
  const std::size_t shown = host.messages.size();
  EXPECT_TRUE(host.pushed->tap(kEditorOk).ok());
  EXPECT_TRUE(host.pushed->closed());
  EXPECT_EQ(host.messages.size(), shown);
  EXPECT_EQ(getObed(app->store()), "09:00<table>11:00<table>14:00<table>17:15<table>23:58");
}

}  // namespace
}  // namespace lad::shell
