#include "shell/wheel_picker.h"

#include <gtest/gtest.h>

#include "store/picker_lists.h"
#include "tests/shell/application_fixture.h"

namespace lad::shell {
namespace {

using lad::testing::ApplicationTest;

const Value& nth(const Value& list, std::size_t i) {
  return list.asList()->at(i);
}

// Opens a picker on the old value and confirms it unchanged, as the browser would.
std::optional<std::string> roundTrip(const Context& c, int set, std::string_view old,
                                     std::vector<std::string> rows = {}) {
  const WheelPicker picker(c, set, "Выбор", old, std::move(rows));
  const Value v = picker.view();
  Value sent = v["value"];
  if (v.asMap()->contains("wheels")) {
    List positions;
    for (const auto& w : *v["wheels"].asList()) positions.push_back(w["selected"]);
    sent = Value(std::move(positions));
  }
  const auto a = picker.answer(nth(v["buttons"], 1)["id"].text(), sent);
  if (!a) return std::nullopt;
  return a->value.text();
}

TEST_F(ApplicationTest, EachPickerGivesBackTheValueItWasOpenedOn) {
  launchApp();
  const Context& c = app->context();
  EXPECT_EQ(roundTrip(c, kDatePicker, "29.02.2028"), "29.02.2028");
  EXPECT_EQ(roundTrip(c, kTimePicker, "07:05"), "07:05");
  EXPECT_EQ(roundTrip(c, kCountDownPicker, "01:30"), "01:30");
  EXPECT_EQ(roundTrip(c, kLengthPicker, "2<td>недели"), "2<td>недели");
  EXPECT_EQ(roundTrip(c, kDosePicker, "1/2<td>капля"), "1/2<td>капля");
  EXPECT_EQ(roundTrip(c, kFrequencyPicker, "24<td>раз в сутки"), "24<td>раз в сутки");
  EXPECT_EQ(roundTrip(c, kRowListPicker, "Вечер", {"Утро", "Вечер"}), "Вечер");
}

TEST_F(ApplicationTest, PickersStartFromNowOrTheFirstRowsOnAnEmptyValue) {
  launchApp();
  const Context& c = app->context();
  EXPECT_EQ(WheelPicker(c, kDatePicker, "", "").view()["value"].text(), "2026-11-23");
  EXPECT_EQ(WheelPicker(c, kTimePicker, "", "25:99").view()["value"].text(), "10:00")
      << "09:00 UTC is 10:00 in the installation's zone";
  EXPECT_EQ(WheelPicker(c, kCountDownPicker, "", "").view()["value"].text(), "00:00");
  const Value wheels = WheelPicker(c, kDosePicker, "", "7<td>ведро").view()["wheels"];
  EXPECT_EQ(nth(wheels, 0)["selected"].intValue(), posFromList(kDosePicker, 0, "7"));
  EXPECT_EQ(nth(wheels, 1)["selected"].intValue(), 0) << "an unknown unit falls to the first row";
  EXPECT_EQ(wheels.asList()->size(), 2u);
  EXPECT_EQ(nth(wheels, 1)["rows"].asList()->size(), listFor(kDosePicker, 1).size());
}

TEST_F(ApplicationTest, APickerRefusesWhatItCannotReadAndCloses) {
  launchApp();
  const Context& c = app->context();
  const WheelPicker date(c, kDatePicker, "Дата", "01.02.2027");
  EXPECT_EQ(date.view()["mode"].text(), "date");
  EXPECT_FALSE(date.answer(popupTarget(1), Value("2027-02-31")));
  EXPECT_FALSE(date.answer(popupTarget(1), Value(5)));
  EXPECT_EQ(date.answer(popupTarget(1), Value("2027-03-04"))->value.text(), "04.03.2027");
  const auto closed = date.answer(popupTarget(0), Value());
  ASSERT_TRUE(closed);
  EXPECT_TRUE(closed->value.isNull());

  const WheelPicker length(c, kLengthPicker, "Длительность", "");
  EXPECT_FALSE(length.answer(popupTarget(1), Value(List{Value(0)}))) << "one wheel short";
  EXPECT_FALSE(length.answer(popupTarget(1), Value(List{Value(100), Value(0)})));
  EXPECT_FALSE(length.answer(popupTarget(1), Value(List{Value(-1), Value(0)})));
  EXPECT_EQ(length.answer(popupTarget(1), Value(List{Value(99), Value(2)}))->value.text(),
            "100<td>месяцы");
}

}  // namespace
}  // namespace lad::shell
