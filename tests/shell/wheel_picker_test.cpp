#include "shell/wheel_picker.h"

#include <gtest/gtest.h>

#include "store/values/picker_lists.h"
#include "tests/shell/application_fixture.h"

namespace lad::shell {
namespace {

using lad::testing::ApplicationTest;
using lad::testing::nth;

// Positions of the wheels as the picker was opened.
Value openedAt(const WheelPicker& picker) {
  const Value view = picker.view();
  List positions;
  for (const auto& w : *view["wheels"].asList()) positions.push_back(w["selected"]);
  return Value(std::move(positions));
}

// Opens a picker on the old value and confirms it unchanged, as the browser would.
std::optional<std::string> roundTrip(const Context& c, int set, std::string_view old,
                                     std::vector<std::string> rows = {}) {
  const WheelPicker picker(c, set, "Выбор", old, std::move(rows));
  const auto a = picker.answer(nth(picker.view()["buttons"], 1)["id"].text(), openedAt(picker));
  if (!a) return std::nullopt;
  return a->value.text();
}

TEST_F(ApplicationTest, EachPickerGivesBackTheValueItWasOpenedOnOrNowOnAnEmptyOne) {
  launchApp();
  const Context& c = app->context();
  const std::pair<int, std::string_view> cases[][2] = {
      {{kDatePicker, "29.02.2028"}, {kDatePicker, "29.02.2028"}},
      {{kDatePicker, "01.01.1990"}, {kDatePicker, "01.01.1990"}},
      {{kDatePicker, ""}, {kDatePicker, "23.11.2026"}},
      {{kTimePicker, "07:05"}, {kTimePicker, "07:05"}},
      // 09:00 UTC is 10:00 in the installation's zone.
      {{kTimePicker, "25:99"}, {kTimePicker, "10:00"}},
      {{kCountDownPicker, "01:30"}, {kCountDownPicker, "01:30"}},
      {{kCountDownPicker, ""}, {kCountDownPicker, "00:00"}},
      {{kLengthPicker, "2<td>недели"}, {kLengthPicker, "2<td>недели"}},
      {{kDosePicker, "1/2<td>капля"}, {kDosePicker, "1/2<td>капля"}},
      {{kDosePicker, "7<td>ведро"}, {kDosePicker, "7<td>мл."}},
      {{kFrequencyPicker, "24<td>раз в сутки"}, {kFrequencyPicker, "24<td>раз в сутки"}},
  };
  for (const auto& [opened, expected] : cases)
    EXPECT_EQ(roundTrip(c, opened.first, opened.second), expected.second) << opened.second;
  EXPECT_EQ(roundTrip(c, kRowListPicker, "Вечер", {"Утро", "Вечер"}), "Вечер");
}

// A date reads as the diary writes it, whatever the browser's language: day, the month's name
// and year on their own wheels; the words of other wheels are in the user's language.
TEST_F(ApplicationTest, WheelsShowTheDiarysOwnWordsAndADayPastTheMonthEndSettlesOnItsLast) {
  launchApp();
  const WheelPicker date(app->context(), kDatePicker, "Дата", "31.01.2027");
  const Value wheels = date.view()["wheels"];
  EXPECT_EQ(nth(nth(wheels, 1)["rows"], 10).text(), "ноября");
  EXPECT_EQ(nth(nth(wheels, 0)["rows"], 30).text(), "31");
  const Value opened = openedAt(date);
  const Value february{List{nth(opened, 0), Value(1), nth(opened, 2)}};
  EXPECT_EQ(date.answer(popupTarget(1), february)->value.text(), "28.02.2027");
  EXPECT_FALSE(date.answer(popupTarget(1), Value(List{Value(0), Value(12), Value(0)})));
  EXPECT_FALSE(date.answer(popupTarget(1), Value("2027-03-04"))) << "positions, not a text";
  const auto closed = date.answer(popupTarget(0), Value());
  ASSERT_TRUE(closed);
  EXPECT_TRUE(closed->value.isNull());

  launchApp(1, "1.0", 2);
  const WheelPicker length(app->context(), kLengthPicker, "Длительность", "");
  EXPECT_EQ(nth(nth(length.view()["wheels"], 1)["rows"], 1).text(), "Wochen");
  EXPECT_FALSE(length.answer(popupTarget(1), Value(List{Value(0)}))) << "one wheel short";
  EXPECT_FALSE(length.answer(popupTarget(1), Value(List{Value(100), Value(0)})));
  EXPECT_FALSE(length.answer(popupTarget(1), Value(List{Value(-1), Value(0)})));
  EXPECT_EQ(length.answer(popupTarget(1), Value(List{Value(99), Value(2)}))->value.text(),
            "100<td>месяцы")
      << "the answer keeps the stored words";
  const WheelPicker german(app->context(), kDatePicker, "Дата", "");
  EXPECT_EQ(nth(nth(german.view()["wheels"], 1)["rows"], 10).text().substr(0, 3), "Nov");
}

}  // namespace
}  // namespace lad::shell
