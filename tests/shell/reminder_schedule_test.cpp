#include "shell/reminder_schedule.h"

#include <gtest/gtest.h>

#include "core/ids.h"
#include "store/records.h"
#include "store/store.h"
#include "tests/store/day_fixture.h"

namespace lad::shell {
namespace {

// The cycle edition's diary; the fixture's clock stands at 2026-03-30 10:00.
class ReminderScheduleTest : public testing::DayTest {
 protected:
  void SetUp() override { openEdition(3); }

  void remind(const std::string& value) {
    StoreBracket bracket = store->connectToBase();
    insertValue(*store, bracket, "alarm", value, testNow(), newID2(1, 1), true, false);
  }
  Date at(const std::string& time) {
    return context->dates().dateFromString("2026-03-30 " + time).value();
  }
  std::vector<std::string> texts(const std::vector<health::PlannedReminder>& reminders) {
    std::vector<std::string> out;
    for (const auto& r : reminders) out.push_back(r.body);
    return out;
  }

  ReminderSchedule schedule;
};

TEST_F(ReminderScheduleTest, AReminderWhoseMinuteCameSurvivesTheNewPlanAndComesOnce) {
  remind(R"([{"time":"10:05","temp":"Витамины"},{"time":"10:20","temp":""}])");
  EXPECT_TRUE(schedule.takeDue(*store, at("10:01"), 1, false).empty());
  ASSERT_EQ(schedule.plan().size(), 2u);

  // The diary changes just after the first minute came: the new plan, made from 10:05:30 on,
  // no longer holds it, and still it is delivered.
  remind(R"([{"time":"10:20","temp":""},{"time":"10:40","temp":"Прогулка"}])");
  EXPECT_EQ(texts(schedule.takeDue(*store, at("10:05:30"), 2, false)),
            std::vector<std::string>{"Витамины"});
  EXPECT_EQ(texts(schedule.plan()),
            (std::vector<std::string>{"Напоминание программы Луновея", "Прогулка"}));
  EXPECT_TRUE(schedule.takeDue(*store, at("10:06"), 2, false).empty()) << "not twice";

  EXPECT_EQ(texts(schedule.takeDue(*store, at("10:45"), 2, false)),
            (std::vector<std::string>{"Напоминание программы Луновея", "Прогулка"}));
  EXPECT_TRUE(schedule.plan().empty());
}

TEST_F(ReminderScheduleTest, AReminderWrittenBetweenTwoLooksWhoseMinuteCameInBetweenComesOnce) {
  remind(R"([{"time":"10:05","temp":"Витамины"}])");
  EXPECT_TRUE(schedule.takeDue(*store, at("10:01"), 1, false).empty());

  // Written at 10:02 for 10:03, next looked at only at 10:06 (a clock that jumped, a slow look):
  // both come, in time order, the one both plans hold only once.
  remind(R"([{"time":"10:03","temp":"Прогулка"},{"time":"10:05","temp":"Витамины"}])");
  EXPECT_EQ(texts(schedule.takeDue(*store, at("10:06"), 2, false)),
            (std::vector<std::string>{"Прогулка", "Витамины"}));
  schedule.invalidate();
  EXPECT_TRUE(schedule.takeDue(*store, at("10:07"), 2, false).empty()) << "not twice";
}

}  // namespace
}  // namespace lad::shell
