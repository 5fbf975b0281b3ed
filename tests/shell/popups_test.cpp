#include <gtest/gtest.h>

#include "shell/list_choice.h"
#include "shell/popup_menu.h"
#include "shell/question.h"
#include "shell/wheel_picker.h"
#include "store/values/picker_lists.h"
#include "tests/shell/application_fixture.h"

namespace lad::shell {
namespace {

using lad::testing::ApplicationTest;
using lad::testing::nth;
using lad::testing::openedPositions;

TEST(PopupTargets, ReadBackOnlyTheirOwnNumbers) {
  EXPECT_EQ(popupIndex(popupTarget(7)), 7);
  for (auto foreign : {"popup:", "popup:x", "popup:-1", "popup:2a", "message:ok", "2"})
    EXPECT_EQ(popupIndex(foreign), -1) << foreign;
}

TEST_F(ApplicationTest, AQuestionHandsBackItsButtonAndNoText) {
  launchApp();
  const Context& c = app->context();
  // The buttons of a question ("Нет", "Да") are answered in the diary's and feedings' removals.
  const Question ask = Question::ask(c, "Удалить запись?", "Удаление");
  EXPECT_FALSE(ask.view().asMap()->contains("input"));
  EXPECT_TRUE(ask.answer(popupTarget(1), Value("ignored"))->value.isNull())
      << "a question without a field hands back no text";
  EXPECT_FALSE(ask.answer(popupTarget(2), Value()));
}

TEST_F(ApplicationTest, APopupMenuReadsItemsGapsAndAddsCancel) {
  launchApp();
  const PopupMenu menu(app->context(),
                       "Редактировать<td>pm-edit.png<tr><td><tr>Удалить<td>pm-clear.png<tr>Копия");
  // An item without a <td> is a plain caption, not a gap.
  std::vector<std::string> items;
  for (const auto& i : menu.items()) items.push_back(i.gap ? "-" : i.caption + "|" + i.icon);
  EXPECT_EQ(items, (std::vector<std::string>{"Редактировать|pm-edit.png", "-",
                                             "Удалить|pm-clear.png", "Копия|", "Отменить|"}));

  const Value v = menu.view();
  EXPECT_FALSE(nth(v["items"], 1).asMap()->contains("id")) << "a gap is not tappable";
  EXPECT_FALSE(menu.answer(popupTarget(1), Value())) << "a tap on a gap chooses nothing";
  EXPECT_EQ(menu.answer(nth(v["items"], 2)["id"].text(), Value())->choice, "Удалить");
  EXPECT_EQ(menu.answer(nth(v["items"], 4)["id"].text(), Value())->button, 4);
  EXPECT_FALSE(menu.answer(popupTarget(5), Value()));

  EXPECT_EQ(PopupMenu(app->context(), "").items().size(), 1u) << "an empty menu holds only cancel";
}

TEST_F(ApplicationTest, AListChoiceNumbersEntriesThenButtons) {
  launchApp();
  const ListChoice choice(app->context(), "Мальчик<br>Девочка", "Отменить");
  const Value v = choice.view();
  EXPECT_EQ(choice.answer(nth(v["entries"], 1)["id"].text(), Value())->choice, "Девочка");
  EXPECT_EQ(choice.answer(nth(v["buttons"], 0)["id"].text(), Value())->button, 2);
  EXPECT_FALSE(choice.answer(popupTarget(3), Value()));
}

TEST_F(ApplicationTest, ASessionShowsAPopupOverItsScreenUntilItIsAnswered) {
  launchApp();
  auto session = greetedSession();
  Session& s = *session;
  std::vector<PopupAnswer> answers;
  s.openPopup(std::make_unique<WheelPicker>(app->context(), kTimePicker, "Время", "08:00"),
              [&](const PopupAnswer& a) {
                answers.push_back(a);
                return EventResult();
              });
  EXPECT_EQ(s.view()["kind"].text(), "page") << "the screen stays below the popup";
  EXPECT_FALSE(tap(s, "menu:0").ok());
  EXPECT_FALSE(send(s, R"({"type":"tap","target":"popup:1","value":"8"})").ok())
      << "an unreadable time keeps the picker open";
  EXPECT_TRUE(answers.empty());
  ASSERT_TRUE(pick(s, List{Value(21), Value(45)}).ok());
  ASSERT_EQ(answers.size(), 1u);
  EXPECT_EQ(answers[0].value.text(), "21:45");
  EXPECT_FALSE(s.view().asMap()->contains("popup"));
}

// Opens a picker on the old value and confirms it unchanged, as the browser would.
std::optional<std::string> roundTrip(const Context& c, int set, std::string_view old,
                                     std::vector<std::string> rows = {}) {
  const WheelPicker picker(c, set, "Выбор", old, std::move(rows));
  const auto a = picker.answer(nth(picker.view()["buttons"], 1)["id"].text(),
                               Value(openedPositions(picker.view())));
  if (!a) return std::nullopt;
  return a->value.text();
}

TEST_F(ApplicationTest, EachPickerGivesBackTheValueItWasOpenedOnOrNowOnAnEmptyOne) {
  launchApp();
  const Context& c = app->context();
  const std::pair<int, std::string_view> cases[][2] = {
      {{kDatePicker, "29.02.2028"}, {kDatePicker, "29.02.2028"}},
      {{kDatePicker, ""}, {kDatePicker, "23.11.2026"}},
      // 09:00 UTC is 10:00 in the installation's zone.
      {{kTimePicker, "25:99"}, {kTimePicker, "10:00"}},
      {{kCountDownPicker, ""}, {kCountDownPicker, "00:00"}},
      {{kDosePicker, "7<td>ведро"}, {kDosePicker, "7<td>мл."}},
  };
  for (const auto& [opened, expected] : cases)
    EXPECT_EQ(roundTrip(c, opened.first, opened.second), expected.second) << opened.second;
  EXPECT_EQ(roundTrip(c, kRowListPicker, "Вечер", {"Утро", "Вечер"}), "Вечер");
}

// A day past the month's end settles on its last; the words of a wheel are in the user's
// language while the answer keeps the diary's own (a date's month names are the browser test's).
TEST_F(ApplicationTest, WheelsAnswerInTheDiarysOwnWordsAndADayPastTheMonthEndSettlesOnItsLast) {
  launchApp();
  const WheelPicker date(app->context(), kDatePicker, "Дата", "31.01.2027");
  const Value opened(openedPositions(date.view()));
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
}

}  // namespace
}  // namespace lad::shell
