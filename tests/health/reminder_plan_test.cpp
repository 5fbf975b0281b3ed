#include "health/reminder_plan.h"

#include <gtest/gtest.h>

#include "core/ids.h"
#include "store/pill_courses.h"
#include "store/records.h"
#include "store/values/regimen.h"
#include "tests/fixtures/diary_generator.h"
#include "tests/store/store_fixture.h"

namespace lad::health {
namespace {

const std::string kGid = "00000000-0000-0000-0001-000000000001";

class ReminderPlanTest : public lad::testing::StoreTest {
 protected:
  // Today is Monday 30 March 2026, 10:00 in Berlin.
  void SetUp() override { openDiary(1); }
  Date at(int d, int m, const char* time) const {
    return *context->dates().dateFromString(context->dates().dateToString(day(d, m), "yyyy-MM-dd") +
                                            " " + time);
  }
  void put(const std::string& type, const std::string& value, Date on,
           const std::string& gid = kGid) {
    StoreBracket bracket = store->connectToBase();
    insertValue(*store, bracket, type, value, on, gid, true, false);
  }
  static std::string reminder(const std::string& time, const std::string& text) {
    return "{\"time\":\"" + time + "\",\"temp\":\"" + text + "\"}";
  }
  std::vector<std::string> bodies(const std::vector<PlannedReminder>& plan) const {
    std::vector<std::string> out;
    for (const auto& p : plan)
      out.push_back(context->dates().dateToString(p.at, "dd.MM HH:mm") + " " + p.body);
    return out;
  }
};

TEST_F(ReminderPlanTest, RemindersFromNowOnWithTheirDaysAndDefaultText) {
  put("alarm", "[" + reminder("09:00", "Прошло") + "," + reminder("11:00", "Витамины") + "]",
      day(30));
  put("alarm", "[" + reminder("23:00", "Вчера") + "]", day(29));
  put("alarm", "[" + reminder("12:00", "") + "," + reminder("25:00", "Нет такого часа") + "]",
      day(1, 4), "OTHER");
  put("alarm", "08:00<td>Старая форма", day(2, 4));
  put("alarm", "[" + reminder("08:00", "Через месяц") + "]", day(29, 4));

  const auto plan = planReminders(*store, testNow());
  EXPECT_EQ(bodies(plan), (std::vector<std::string>{"30.03 11:00 Витамины",
                                                    "01.04 12:00 Напоминание программы Ладанея",
                                                    "29.04 08:00 Через месяц"}));
  ASSERT_EQ(plan.size(), 3u);
  EXPECT_EQ(plan[1].day, day(1, 4));
  EXPECT_EQ(plan[1].gid, "OTHER");
}

TEST_F(ReminderPlanTest, OnlyTwentyDaysWithValuesArePlanned) {
  for (int d = 0; d < 25; ++d)
    put("alarm", "[" + reminder("07:00", "A") + "," + reminder("19:00", "B") + "]",
        context->dates().addDays(day(31), d));
  const auto plan = updateNoteAlarms(*store, testNow());
  ASSERT_EQ(plan.size(), 40u);
  EXPECT_EQ(plan.back().at, at(19, 4, "19:00"));
}

TEST_F(ReminderPlanTest, TheChildsDiaryPlansFromItsOwnTableUnderTheChildsName) {
  openDiary(2);
  lad::testing::addChild(*store, "CHILD", day(1, 1), "3.2", "50");
  put("alarm", "[" + reminder("18:00", "") + "," + reminder("19:00", "Купание") + "]", day(30),
      "CHILD");
  EXPECT_EQ(bodies(updateNoteAlarms(*store, testNow())),
            (std::vector<std::string>{"30.03 18:00 Малыш: Напоминание программы Крохомир",
                                      "30.03 19:00 Малыш: Купание"}));
}

TEST_F(ReminderPlanTest, IntakesJoinThePlanOnlyWithTheSwitchOn) {
  Regimen course;
  course.pillname = newID2(4, 4);
  course.pilldoza = "3<td>шт.";
  course.pillperiod = newID2(4, 10);
  course.pilllength = "1<td>месяцы";
  course.pillsdate = "30.03.2026";
  course.pilltime = "08:00<td>15:00<td>22:00";
  course.key = "K";
  {
    StoreBracket bracket = store->connectToBase();
    addNoteComplex(*store, bracket, "pills", course.toValue().toJson(), {}, kGid, day(30));
  }
  put("alarm", "[" + reminder("11:00", "Врач") + "," + reminder("16:00", "") + "]", day(30));
  put("pills", "[{\"pillinter\":", day(30), "OTHER");

  EXPECT_EQ(planReminders(*store, testNow()).size(), 2u) << "the switch is off";
  context->values().pillsAlarm = true;
  const auto plan = planReminders(*store, testNow());
  // Today's 08:00 has passed. The limit is on rows: the other profile's broken value takes one
  // of the twenty, which leaves nineteen days of the course, three intakes each.
  ASSERT_EQ(plan.size(), 2u + 2 + 18 * 3);
  EXPECT_EQ(bodies({plan.begin(), plan.begin() + 4}),
            (std::vector<std::string>{"30.03 11:00 Врач", "30.03 15:00 Арбидол: 3 штуки",
                                      "30.03 16:00 Напоминание программы Ладанея",
                                      "30.03 22:00 Арбидол: 3 штуки"}));
  EXPECT_EQ(plan.back().at, at(17, 4, "22:00"));
}

}  // namespace
}  // namespace lad::health
