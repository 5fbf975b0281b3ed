#include "health/doctor_due.h"

#include <gtest/gtest.h>

#include "core/ids.h"
#include "store/selections.h"
#include "tests/health/schedule_fixture.h"

namespace lad::health {
namespace {

using lad::testing::kScheduleGid;
using Texts = std::vector<std::string>;

class DoctorDueTest : public lad::testing::ScheduleTest {
 protected:
  void tick(const std::string& guid, int seltypeid = 1) {
    setCheckData(*store, seltypeid, guid, true, kScheduleGid);
  }
};

TEST_F(DoctorDueTest, AnItemIsDueFromItsWeekUntilItIsTicked) {
  EXPECT_EQ(dueDoctorItems(*store, day(30), kScheduleGid),
            (Texts{"Сдать анализ", "Узнать об анализе"}))
      << "week 11";
  const Texts week12{"Сходить к врачу", "Сдать анализ", "Узнать об анализе"};
  EXPECT_EQ(dueDoctorItems(*store, day(6, 4), kScheduleGid), week12);

  tick(newID2(2, 12345));
  tick("ITEM-NO-LONGER-IN-THE-PLAN");
  EXPECT_EQ(dueDoctorItems(*store, day(1, 6), kScheduleGid), week12)
      << "five characters are no old number; a stray tick is ignored";

  tick(newID2(2, 7));
  tick("12345");
  EXPECT_EQ(dueDoctorItems(*store, day(1, 6), kScheduleGid), Texts{"Сдать анализ"});
}

TEST_F(DoctorDueTest, TheWeeksNoticesUntilDismissed) {
  EXPECT_EQ(getTodayWarning(*store, 4, 11, kScheduleGid), Texts{"Неделя одиннадцать"});
  EXPECT_EQ(getTodayWarning(*store, 5, 11, kScheduleGid), Texts{"Малыш растёт"});
  EXPECT_EQ(getTodayWarning(*store, 4, 13, kScheduleGid), Texts{});

  tick(newID2(2, 11), 1004);
  EXPECT_EQ(getTodayWarning(*store, 4, 11, kScheduleGid), Texts{});
  EXPECT_EQ(getTodayWarning(*store, 4, 12, kScheduleGid), Texts{"Другая неделя"});
  EXPECT_EQ(getTodayWarning(*store, 5, 11, kScheduleGid), Texts{"Малыш растёт"});
  tick("11", 1005);
  EXPECT_EQ(getTodayWarning(*store, 5, 11, kScheduleGid), Texts{});
}

TEST_F(DoctorDueTest, ThePlanNoticeCountsTheItemsNotTicked) {
  writeContent("doctorhelp-u.jsn", "[]");
  for (const auto& [count, text] : {std::pair{1, "В разделе К доктору у Вас не отмечен 1 пункт"},
                                    {2, "В разделе К доктору у Вас не отмечено 2 пункта"},
                                    {5, "В разделе К доктору у Вас не отмечено 5 пунктов"},
                                    {21, "В разделе К доктору у Вас не отмечен 21 пункт"}}) {
    std::string items;
    for (int i = 1; i <= count; ++i)
      items += std::string(i > 1 ? "," : "") + R"({"checkid": ")" + std::to_string(i) +
               R"(", "planestart": 1, "indaycomment": "Пункт"})";
    writeContent("doctor-u.jsn", R"([{"Content": [)" + items + "]}]");
    EXPECT_EQ(getTodayWarning(*store, 7, 11, kScheduleGid), Texts{text}) << count;
  }
  writeContent("doctor-u.jsn", "[]");
  EXPECT_EQ(getTodayWarning(*store, 7, 11, kScheduleGid), Texts{});
}

TEST_F(DoctorDueTest, NoNoticesOutsideThePregnancyEditions) {
  launchEdition(3);
  EXPECT_EQ(getTodayWarning(*store, 4, 11, kScheduleGid), Texts{});
}

}  // namespace
}  // namespace lad::health
