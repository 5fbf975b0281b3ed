#include <gtest/gtest.h>

#include "shell/help_hint.h"
#include "shell/list_choice.h"
#include "shell/popup_menu.h"
#include "shell/question.h"
#include "shell/session.h"
#include "shell/wheel_picker.h"
#include "tests/shell/application_fixture.h"

namespace lad::shell {
namespace {

using lad::testing::ApplicationTest;
using lad::testing::nth;

std::vector<std::string> captionsOf(const Value& nodes) {
  std::vector<std::string> out;
  for (const auto& n : *nodes.asList()) out.push_back(n["caption"].text());
  return out;
}

TEST(PopupTargets, ReadBackOnlyTheirOwnNumbers) {
  EXPECT_EQ(popupIndex(popupTarget(7)), 7);
  for (auto foreign : {"popup:", "popup:x", "popup:-1", "popup:2a", "message:ok", "2"})
    EXPECT_EQ(popupIndex(foreign), -1) << foreign;
}

TEST_F(ApplicationTest, QuestionsCarryTheirButtonsAndTheTypedText) {
  launchApp();
  const Context& c = app->context();
  EXPECT_EQ(Question::message(c, "Текст", "Ошибка").buttons(), std::vector<std::string>{"ОК"});
  const Question ask = Question::ask(c, "Удалить запись?", "Удаление");
  EXPECT_EQ(ask.buttons(), (std::vector<std::string>{"Нет", "Да"}));
  EXPECT_EQ(ask.view()["caption"].text(), "Удаление");
  EXPECT_EQ(ask.view()["text"].text(), "Удалить запись?");
  EXPECT_FALSE(ask.view().asMap()->contains("input"));
  const auto yes = ask.answer(popupTarget(1), Value("ignored"));
  ASSERT_TRUE(yes);
  EXPECT_EQ(yes->choice, "Да");
  EXPECT_TRUE(yes->value.isNull()) << "a question without a field hands back no text";
  EXPECT_FALSE(ask.answer(popupTarget(2), Value()));

  const Question named = Question::askString(c, "Название", "Новый тип");
  EXPECT_EQ(captionsOf(named.view()["buttons"]), (std::vector<std::string>{"Отменить", "Ok"}));
  EXPECT_TRUE(named.view().asMap()->contains("input"));
  const auto ok = named.answer(popupTarget(1), Value("Сироп"));
  ASSERT_TRUE(ok);
  EXPECT_EQ(ok->button, 1);
  EXPECT_EQ(ok->value.text(), "Сироп");
}

TEST_F(ApplicationTest, APopupMenuReadsItemsGapsAndAddsCancel) {
  launchApp();
  const PopupMenu menu(app->context(),
                       "Редактировать<td>pm-edit.png<tr><td><tr>Удалить<td>pm-clear.png<tr>Копия");
  const auto& items = menu.items();
  ASSERT_EQ(items.size(), 5u);
  EXPECT_EQ(items[0].caption, "Редактировать");
  EXPECT_EQ(items[0].icon, "pm-edit.png");
  EXPECT_TRUE(items[1].gap);
  EXPECT_EQ(items[3].caption, "Копия");
  EXPECT_EQ(items[3].icon, "") << "an item without a <td> is a plain caption, not a gap";
  EXPECT_FALSE(items[3].gap);
  EXPECT_EQ(items[4].caption, "Отменить");

  const Value v = menu.view();
  EXPECT_TRUE(nth(v["items"], 1)["gap"].boolValue());
  EXPECT_FALSE(nth(v["items"], 1).asMap()->contains("id")) << "a gap is not tappable";
  EXPECT_FALSE(menu.answer(popupTarget(1), Value())) << "a tap on a gap chooses nothing";
  EXPECT_EQ(menu.answer(nth(v["items"], 2)["id"].text(), Value())->choice, "Удалить");
  const auto cancel = menu.answer(nth(v["items"], 4)["id"].text(), Value());
  EXPECT_EQ(cancel->choice, "Отменить");
  EXPECT_EQ(cancel->button, 4);
  EXPECT_FALSE(menu.answer(popupTarget(5), Value()));

  EXPECT_EQ(PopupMenu(app->context(), "").items().size(), 1u) << "an empty menu holds only cancel";
}

TEST_F(ApplicationTest, APopupMenuHandsBackTranslatedCaptions) {
  launchApp(1, "1.0", 2);
  const PopupMenu menu(app->context(), "Сегодня<td>pm-today.png<tr>Женщина<td>pm-woman.png");
  EXPECT_EQ(menu.items()[0].caption, "Heute");
  EXPECT_EQ(menu.answer(popupTarget(1), Value())->choice, "Frau");
}

TEST_F(ApplicationTest, AListChoiceNumbersEntriesThenButtons) {
  launchApp();
  const ListChoice choice(app->context(), "Мальчик<br>Девочка", "Отменить");
  EXPECT_EQ(choice.entries(), (std::vector<std::string>{"Мальчик", "Девочка"}));
  const Value v = choice.view();
  EXPECT_EQ(captionsOf(v["buttons"]), std::vector<std::string>{"Отменить"});
  EXPECT_EQ(choice.answer(nth(v["entries"], 1)["id"].text(), Value())->choice, "Девочка");
  const auto cancel = choice.answer(nth(v["buttons"], 0)["id"].text(), Value());
  EXPECT_EQ(cancel->button, 2);
  EXPECT_EQ(cancel->choice, "Отменить");
  EXPECT_FALSE(choice.answer(popupTarget(3), Value()));
}

TEST_F(ApplicationTest, AHintShowsUntilItsKeyIsFinishedAndStaysFinished) {
  launchApp();
  HelpHint hint(settings(), "noteHelp");
  ASSERT_TRUE(hint.view());
  EXPECT_EQ((*hint.view())["icon"].text(), "help-icon2.png");
  EXPECT_FALSE(hint.tap("help:doctorHelp"));
  EXPECT_TRUE(hint.due());
  EXPECT_TRUE(hint.tap((*hint.view())["id"].text()));
  EXPECT_FALSE(hint.view());
  EXPECT_TRUE(HelpHint(settings(), "doctorHelp").due()) << "each key is its own";
  settings().synchronize();
  launchApp();
  EXPECT_FALSE(HelpHint(settings(), "noteHelp").due());
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
  EXPECT_EQ(s.view()["popup"]["wheels"].asList()->at(0)["selected"].intValue(), 8);
  EXPECT_EQ(s.view()["kind"].text(), "page") << "the screen stays below the popup";
  EXPECT_FALSE(s.handle(*Value::fromJson(R"({"type":"tap","target":"menu:0"})")).ok());
  EXPECT_FALSE(s.handle(*Value::fromJson(R"({"type":"tap","target":"popup:1","value":"8"})")).ok())
      << "an unreadable time keeps the picker open";
  EXPECT_TRUE(answers.empty());
  ASSERT_TRUE(
      s.handle(*Value::fromJson(R"({"type":"tap","target":"popup:1","value":[21,45]})")).ok());
  ASSERT_EQ(answers.size(), 1u);
  EXPECT_EQ(answers[0].value.text(), "21:45");
  EXPECT_FALSE(s.view().asMap()->contains("popup"));
}

}  // namespace
}  // namespace lad::shell
