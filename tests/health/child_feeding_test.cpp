#include "health/child_feeding.h"

#include <gtest/gtest.h>

#include "tests/store/store_fixture.h"

namespace lad::health {
namespace {

class ChildFeedingTest : public testing::StoreTest {
 protected:
  void SetUp() override { openDiary(2); }
  Date day(int offset) const { return context->dates().addDays(testNow(), offset); }
  static Value feeding(const std::string& when, int kind, const std::string& value) {
    Map m;
    m.set("kodates", when);
    m.set("kotype", kind);
    m.set("kovalue", value);
    m.set("kosum", 0);
    return Value(std::move(m));
  }
  static std::string breast(int left, int right) {
    return R"({"tp":"1","tip":"Грудное молоко","left":")" + std::to_string(left) +
           R"(","right":")" + std::to_string(right) + R"("})";
  }
  static std::string food(int kind, const std::string& tip, int volume, const char* measure) {
    return R"({"tp":")" + std::to_string(kind) + R"(","tip":")" + tip + R"(","volume":")" +
           std::to_string(volume) + R"(","measure":")" + measure + R"("})";
  }
};

TEST_F(ChildFeedingTest, AFeedingReadsAsItsLine) {
  const List foods =
      *Value::fromJson(R"([{"index":"FOOD-0000-01","cap":"  Агуша яблочный сок (мил.)<tr>10"}])")
           ->asList();
  EXPECT_EQ(kormToString(*context, breast(12, 7), foods),
            "Левая грудь: 12 мин.\nПравая грудь: 7 мин.");
  EXPECT_EQ(kormToString(*context, breast(0, 5), foods), "\nПравая грудь: 5 мин.");
  EXPECT_EQ(kormToString(*context, food(7, "FOOD-0000-01", 120, "мил."), foods),
            "Агуша яблочный сок: 120 мил.");
  EXPECT_EQ(kormToString(*context, food(3, "Кефир", 100, "мил."), foods), "100 мил.");
  EXPECT_EQ(kormLine(*context, food(3, "Кефир", 100, "мил."), foods), "Кефир: 100 мил.");
  EXPECT_EQ(kormToString(*context, "3<tr>Кефир<tr>100", foods), "");
  EXPECT_EQ(kormToString(*context, "{broken", foods), "");
}

TEST_F(ChildFeedingTest, TotalsCompareWithTheLastDayThatHadFeedings) {
  const List today{feeding("", 1, breast(10, 5)), feeding("", 1, breast(0, 10)),
                   feeding("", 2, food(2, "F", 100, "мл.")), feeding("", 4, food(4, "Т", 40, "г.")),
                   feeding("", 7, food(7, "O", 3, "шт."))};
  const List before{feeding("", 1, breast(20, 10)), feeding("", 2, food(2, "F", 150, "мл.")),
                    feeding("", 4, food(4, "Т", 40, "г.")),
                    feeding("", 5, food(5, "K", 80, "мл."))};
  EXPECT_EQ(
      kormTotals(*context, today, before),
      (std::vector<std::string>{"Грудное молоко: 25 (-5) мин.", "Смесь: 100 (-50) мл.",
                                "Творог: 40 г.", "Каша: перестали", "Другое: итог не ведется"}));
  EXPECT_EQ(kormTotals(*context, before, today),
            (std::vector<std::string>{"Грудное молоко: 30 (+5) мин.", "Смесь: 150 (+50) мл.",
                                      "Творог: 40 г.", "Каша: 80 мл.", "Другое: перестали"}));
  EXPECT_TRUE(kormTotals(*context, {}, {}).empty());
}

TEST_F(ChildFeedingTest, ADaysFeedingsAreReplacedWhole) {
  const std::string kid = "K1";
  const std::string monday = context->dates().dateToString(day(-2), "yyyy-MM-dd");
  const std::string tuesday = context->dates().dateToString(day(0), "yyyy-MM-dd");
  saveKormForDate(*store, {feeding(monday + " 08:00:00", 1, breast(5, 5))}, day(-2), kid);
  saveKormForDate(*store,
                  {feeding(tuesday + " 07:00:00", 1, breast(1, 2)),
                   feeding(tuesday + " 09:00:00", 3, food(3, "Кефир", 50, "мил."))},
                  day(0), kid);
  saveKormForDate(*store, {feeding(tuesday + " 10:00:00", 1, breast(9, 9))}, day(0), "K2");
  ASSERT_EQ(loadKormForDate(*store, day(0), kid).size(), 2u);
  saveKormForDate(*store, {feeding(tuesday + " 11:00:00", 1, breast(3, 0))}, day(0), kid);
  const List loaded = loadKormForDate(*store, day(0), kid);
  ASSERT_EQ(loaded.size(), 1u);
  EXPECT_EQ(loaded[0]["kodates"].text(), tuesday + " 11:00:00");
  EXPECT_EQ(loadKormForDate(*store, day(-2), kid).size(), 1u);
  EXPECT_EQ(loadKormForDate(*store, day(0), "K2").size(), 1u);
  // The last comparable day skips days without feedings and never looks at the day itself.
  EXPECT_EQ(loadLastKormBefore(*store, day(0), kid)[0]["kodates"].text(), monday + " 08:00:00");
  EXPECT_EQ(loadLastKormBefore(*store, day(1), kid)[0]["kodates"].text(), tuesday + " 11:00:00");
  EXPECT_TRUE(loadLastKormBefore(*store, day(-2), kid).empty());
}

}  // namespace
}  // namespace lad::health
