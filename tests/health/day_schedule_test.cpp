#include "health/day_schedule.h"

#include <gtest/gtest.h>

#include "core/ids.h"
#include "store/profiles.h"
#include "store/selections.h"
#include "store/values/regimen.h"
#include "tests/health/schedule_fixture.h"

namespace lad::health {
namespace {

using lad::testing::kScheduleGid;
using Rows = std::vector<std::string>;

class DayScheduleTest : public lad::testing::ScheduleTest {
 protected:
  // A course of the older kind (no hours of its own) of medicine 4 or 5, with relation entry n.
  static Value course(int medicine, const std::string& inter, int eat,
                      const std::string& first = "28.03.2026") {
    Regimen r;
    r.pillname = newID2(4, medicine);
    r.pilldoza = "1<td>шт.";
    r.pillinter = inter;
    r.pilleat = newID2(4, eat);
    r.pilllength = "1<td>недели";
    r.pillsdate = first;
    return r.toValue();
  }
  void pills(const List& courses) { put("pills", Value(courses).toJson(), day(30)); }
};

const std::string kNoReminders = "00:00 1 |0<tr>В этом дне напоминаний нет";
const std::string kNoPills = "00:01 1 |0<tr>Приема лекарств и процедур в этом дне нет";
const std::string kDoctorHeader = "25:01 1 Необходимо посещение медицинского учреждения|";
const std::string kDueInWeek11 = "25:02 1 |1<tr>Сдать анализ<end>1<tr>Узнать об анализе";

TEST_F(DayScheduleTest, KeysOfMealsAndSpreadsAndTheMergeOfRows) {
  const std::string meals = "09:00<table>11:00<table>14:00<table>16:00<table>23:58";
  EXPECT_EQ(gt(meals, 5, 3), "00:01") << "wraps over midnight";
  EXPECT_EQ(gt(meals, 6, 1), std::nullopt);
  EXPECT_EQ(gt("9:00<table>11:00", 1, 1), std::nullopt);
  EXPECT_EQ(gt("25:00<table>11:00", 1, 1), std::nullopt);

  struct Spread {
    int kind, count;
    std::string keys;
  };
  for (const Spread& s :
       {Spread{2, 7, "00:00 03:00 06:00 09:00 12:00 15:00 18:00"}, Spread{2, 1, "00:00"},
        Spread{1, 4, "08:00 12:30 17:15 22:00"}, Spread{3, 2, "00:00 00:00"}}) {
    std::string keys;
    for (int pos = 1; pos <= s.count; ++pos)
      keys += (pos > 1 ? " " : "") + generateTime(s.kind, s.count, pos);
    EXPECT_EQ(keys, s.keys) << s.kind << " " << s.count;
  }

  Schedule merged;
  insInData(merged, kPlainRow, "", "", "09:01");
  insInData(merged, kPlainRow, "", "a", "09:01");
  insInData(merged, kPlainRow, "", "b", "09:01");
  insInData(merged, kPlainRow, "", "", "09:01");
  insInData(merged, kMealRow, "", "c", "09:01");
  EXPECT_EQ(merged,
            (Schedule{{kPlainRow, "", "09:01", "a<end>b<end>"}, {kMealRow, "", "09:01", "c"}}));

  EXPECT_EQ(compareRight(*context, "09:03", "завтрак"), 0) << "the relations' order is below";
}

TEST_F(DayScheduleTest, AnEmptyDayOfAPregnancyHasItsThreeNoticesInOrder) {
  setCheckData(*store, 1, "D0C7A000-0000-4000-8000-000000000102", true, kScheduleGid);
  setCheckData(*store, 1, "12345", true, kScheduleGid);
  EXPECT_EQ(rows(day(30)),
            (Rows{kNoReminders, kNoPills,
                  "23:59 1 |0<tr>Необходимых посещений медицинских учреждений нет"}));
}

TEST_F(DayScheduleTest, MedicinesBeforeMealsShareTheRowsOfTheirMeals) {
  pills({course(4, "3<td>раз в день", 16), course(5, "3<td>раз в сутки", 16)});
  const std::string both =
      "23<tr>Арбидол: 1 штука  (3 день из 7)<end>23<tr>Парацетамол: 1 штука  (3 день из 7)";
  Rows expected{kNoReminders};
  for (const std::string h : {"09", "14", "20"}) {
    const std::string word = h == "09" ? "завтрак" : h == "14" ? "обед" : "ужин";
    expected.insert(expected.end(), {h + ":01 1 |", h + ":02 3 Перед едой|" + both,
                                     h + ":03 2 " + word + "|", h + ":05 1 |"});
  }
  expected.insert(expected.end(), {kDoctorHeader, kDueInWeek11});
  EXPECT_EQ(rows(day(30)), expected);
}

TEST_F(DayScheduleTest, MoreThanFiveIntakesSpreadWithTheRelationAfterAComma) {
  pills({course(4, "6<td>раз в день", 16, "")});
  Rows spread;
  for (const std::string& row : rows(day(30)))
    if (row.find("|23<tr>") != std::string::npos) spread.push_back(row);
  Rows expected;
  for (const std::string time : {"08:00", "10:45", "13:30", "16:15", "19:00", "22:00"})
    expected.push_back(time + " 1 " + time + "|23<tr>Арбидол: 1 штука, Перед едой ");
  EXPECT_EQ(spread, expected);
}

TEST_F(DayScheduleTest, RowsOfOneKeyFollowTheRelationsAndAReminderStandsBesideItsMeal) {
  put("alarm", R"([{"time":"09:03","temp":"Витамины"}])", day(30));
  pills({course(4, "1<td>раз в день", 24), course(4, "1<td>раз в день", 18),
         course(5, "1<td>раз в день", 22), course(5, "1<td>раз в день", 21),
         course(4, "1<td>раз в день", 19)});
  const std::string a = "23<tr>Арбидол: 1 штука  (3 день из 7)";
  const std::string p = "23<tr>Парацетамол: 1 штука  (3 день из 7)";
  EXPECT_EQ(rows(day(30)),
            (Rows{"09:01 1 |", "09:02 3 За 1 час до еды|" + p, "09:02 3 За 15 минут до еды|" + a,
                  "09:03 1 09:03|5<tr>Витамины", "09:03 2 завтрак|", "09:04 3 После еды|" + a,
                  "09:04 3 Через 15 минут после еды|" + p, "09:04 3 Через 1 час после еды|" + a,
                  "09:05 1 |", kDoctorHeader, kDueInWeek11}));
}

TEST_F(DayScheduleTest, ALastMealBeforeMidnightWrapsToTheStartOfTheDay) {
  setObed(*store, "09:00<table>11:00<table>14:00<table>16:00<table>23:58");
  pills({course(4, "2<td>раз в день", 17)});
  const std::string a = "23<tr>Арбидол: 1 штука  (3 день из 7)";
  EXPECT_EQ(rows(day(30)),
            (Rows{kNoReminders, "00:01 2 ужин|" + a, "00:03 1 |", "09:01 1 |",
                  "09:03 2 завтрак|" + a, "09:05 1 |", "23:59 1 |", kDoctorHeader, kDueInWeek11}));
}

}  // namespace
}  // namespace lad::health
