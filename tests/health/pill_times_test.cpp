#include "health/pill_times.h"

#include <gtest/gtest.h>

#include "core/ids.h"
#include "store/dictionary.h"
#include "tests/health/health_fixture.h"

namespace lad::health {
namespace {

using namespace std::chrono_literals;

const std::string kMeals = "09:30<table>11:00<table>14:00<table>16:00<table>20:00";

class PillTimesTest : public lad::testing::HealthTest {
 protected:
  PillTimesTest() {
    addToList(list, newID2(4, 4), "Арбидол<tr>противовирусное", 101, false);
    for (const auto& [n, caption] : {std::pair{15, "Независимо от еды"},
                                     {16, "Перед едой"},
                                     {18, "После еды"},
                                     {21, "За 1 час до еды"}})
      addToList(list, newID2(4, n), caption, 103, false);
  }
  static std::string eat(int n) { return newID2(4, n); }

  // The "HH:mm" of each intake, joined by spaces.
  std::string hours(const std::vector<Intake>& intakes) const {
    std::string out;
    for (const Intake& i : intakes)
      out += (out.empty() ? "" : " ") + context.dates().dateToString(i.dat, "HH:mm");
    return out;
  }
  std::string spread(int type, int count) const {
    std::vector<Intake> out;
    for (int p = 1; p <= count; ++p)
      if (auto time = generateTime(context.dates(), at("2026-05-12"), type, count, p))
        out.push_back({*time, ""});
    return hours(out);
  }
  Regimen course(const std::string& inter, const std::string& eatGuid) const {
    Regimen r;
    r.pillname = newID2(4, 4);
    r.pilldoza = "1/2<td>шт.";
    r.pillinter = inter;
    r.pilleat = eatGuid;
    return r;
  }

  List list;
};

TEST_F(PillTimesTest, IntakesSpreadOverWakingHoursOrTheWholeDay) {
  EXPECT_EQ(spread(1, 1), "08:00");
  EXPECT_EQ(spread(2, 1), "00:00");
  EXPECT_EQ(spread(2, 7), "00:00 03:25 06:51 10:17 13:42 17:08 20:34");

  const Date day = at("2026-05-12");
  for (int count = 2; count <= 24; ++count) {
    std::vector<Date> waking, whole;
    for (int p = 1; p <= count; ++p) {
      waking.push_back(*generateTime(context.dates(), day, 1, count, p));
      whole.push_back(*generateTime(context.dates(), day, 2, count, p));
    }
    EXPECT_EQ(waking.front(), at("2026-05-12 08:00")) << count;
    EXPECT_EQ(waking.back(), at("2026-05-12 22:00")) << count;
    EXPECT_EQ(whole.front(), day) << count;
    for (int p = 1; p < count; ++p) {
      EXPECT_LT(waking[p - 1], waking[p]) << count;
      EXPECT_EQ((waking[p] - day) % 15min, 0min) << count;
      const auto gap = whole[p] - whole[p - 1];
      EXPECT_LE(std::chrono::abs(gap - 1440min / count), 1min) << count << " " << p;
    }
    EXPECT_LT(whole.back(), at("2026-05-13")) << count;
  }
  // 02:00 does not exist in Berlin on the day clocks go forward: that intake is skipped.
  EXPECT_FALSE(generateTime(context.dates(), at("2026-03-29"), 2, 12, 2));
}

TEST_F(PillTimesTest, MealOffsetsAndTheHourThatCannotBeFormed) {
  std::vector<Intake> at9;
  for (const char* relation :
       {"За 1 час до еды", "Перед едой", "Через 1 час после еды", "Когда захочется"})
    at9.push_back({generateTimeEat(context, at("2026-05-12"), 9, relation).value(), ""});
  EXPECT_EQ(hours(at9), "08:00 08:55 10:10 09:00");
  EXPECT_FALSE(generateTimeEat(context, at("2026-05-12"), 0, "За 1 час до еды"));
  EXPECT_FALSE(generateTimeEat(context, at("2026-05-12"), 23, "Через 1 час после еды"));
}

TEST_F(PillTimesTest, CoursesOfADayGiveTheirIntakesAndTexts) {
  const Date day = at("2026-05-12");
  const auto intakes = [&](const Regimen& r) {
    return regimenIntakes(context, day, r, list, kMeals);
  };

  // Bound to meals: the whole hour of each meal counts, so breakfast at 09:30 counts as 9.
  EXPECT_EQ(hours(intakes(course("2<td>раз в день", eat(16)))), "08:55 19:55");
  const auto five = intakes(course("5<td>раз в сутки", eat(18)));
  EXPECT_EQ(hours(five), "09:10 11:10 14:10 16:10 20:10");
  EXPECT_EQ(five[0].msg, "Арбидол: 1/2 штуки (После еды)");

  // From six on, or with no relation to food, the intakes spread and the relation is only told.
  const auto six = intakes(course("6<td>раз в день", eat(16)));
  EXPECT_EQ(hours(six), "08:00 10:45 13:30 16:15 19:00 22:00");
  EXPECT_EQ(six[0].msg, "Арбидол: 1/2 штуки, Перед едой");
  const auto any = intakes(course("5<td>раз в сутки", eat(15)));
  EXPECT_EQ(hours(any), "00:00 04:48 09:36 14:24 19:12");
  EXPECT_EQ(any[0].msg, "Арбидол: 1/2 штуки");

  // Stored hours win over everything else.
  Regimen fixed = course("6<td>раз в день", eat(16));
  fixed.pilltime = "07:15<td>bad<td>21:40";
  EXPECT_EQ(hours(intakes(fixed)), "07:15 21:40");

  // A meal at midnight with an hour before it has no intake.
  EXPECT_TRUE(
      regimenIntakes(context, day, course("1<td>раз в день", eat(21)), list, "00:00<table>11:00")
          .empty());
}

TEST_F(PillTimesTest, ADayValueAndTheEditorsHours) {
  const Date day = at("2026-05-12");
  const std::string value = "[" + course("3<td>раз в день", eat(18)).toValue().toJson() + "," +
                            course("1<td>раз в день", eat(15)).toValue().toJson() + "]";
  EXPECT_EQ(hours(pillsToTimeArray(context, day, value, list, kMeals)), "09:10 14:10 20:10 08:00");
  for (const char* broken :
       {"", "08:00", "[{\"pillinter\":", "{\"pillinter\":\"2<td>раз в день\"}"})
    EXPECT_TRUE(pillsToTimeArray(context, day, broken, list, kMeals).empty()) << broken;
  EXPECT_EQ(
      hours(pillsToTimeArray(context, day, "[{\"pillinter\":3,\"pilleat\":[]}]", list, kMeals)),
      "09:00")
      << "members that are no texts read as empty";

  Regimen edited = course("3<td>раз в сутки", eat(15));
  edited.pilltime = "08:00<td>15:00<td>22:00";
  EXPECT_EQ(getCurrentPillTime(context, edited, list, kMeals, day), "00:00<td>08:00<td>16:00");
  edited.pilleat = eat(18);
  EXPECT_EQ(getCurrentPillTime(context, edited, list, kMeals, day), "09:10<td>14:10<td>20:10");
  edited.pillinter.clear();
  EXPECT_FALSE(getCurrentPillTime(context, edited, list, kMeals, day));
}

}  // namespace
}  // namespace lad::health
