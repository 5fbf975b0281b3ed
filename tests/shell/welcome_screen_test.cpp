#include "shell/welcome_screen.h"

#include <gtest/gtest.h>

#include "tests/shell/application_fixture.h"

namespace lad::shell {
namespace {

using lad::testing::ApplicationTest;

// The greeting's texts in order, with each row of buttons as "[caption|caption]".
std::vector<std::string> blocksOf(const Value& view) {
  std::vector<std::string> out;
  for (const Value& block : *view["children"].asList()) {
    if (block["kind"].text() == "text") {
      out.push_back(block["text"].text());
      continue;
    }
    std::string row = "[";
    for (const Value& b : *block["buttons"].asList())
      row += (row.size() > 1 ? "|" : "") + b["caption"].text();
    out.push_back(row + "]");
  }
  return out;
}

TEST_F(ApplicationTest, TheGreetingOfAnUpdateIsTheSameInEveryEdition) {
  launchApp(3);
  WelcomeScreen w(app->context(), Greeting::Update);
  const Value v = w.view();
  EXPECT_EQ(v["kind"].text(), "welcome");
  EXPECT_EQ(v["caption"].text(), "Луновея");
  EXPECT_EQ(v["accent"].text(), "orangeB3");
  EXPECT_EQ(v["close"]["caption"].text(), "Начать работу");
  EXPECT_EQ(blocksOf(v), (std::vector<std::string>{
                             "Добро пожаловать в новую версию программы",
                             "Более подробно о новшествах в программе Вы можете ознакомиться здесь",
                             "[Что нового?]",
                             "Если у Вас возникнут сложности или вопросы по программе, к вашимa "
                             "услугам раздел Поддержка на главном экране программе.",
                         }));
}

TEST_F(ApplicationTest, ANewInstallationIsToldWhereToBeginInTheWordsOfItsEdition) {
  const struct {
    int appid;
    const char* caption;
    const char* firstWords;
    const char* buttons;
  } cases[] = {
      {1, "Ладанея",
       "Если Вы первый раз установили программу, то перейдите в настройки учетной "
       "записи беременности",
       "[Настройки|Облако]"},
      {2, "Крохомир",
       "Если Вы первый раз установили программу, то перейдите в настройки учетной "
       "записи ребенка",
       "[Настройки|Облако]"},
      {3, "Луновея", "Если Вы первый раз установили программу, то перейдите в настройки программы",
       "[Настройки|Облако]"},
      {14, "Ладанея 3D", "Для того, чтобы настроить программу под себя", "[Настройки]"},
  };
  for (const auto& c : cases) {
    launchApp(c.appid);
    const Value v = WelcomeScreen(app->context(), Greeting::NewInstallation).view();
    EXPECT_EQ(v["caption"].text(), c.caption);
    const auto blocks = blocksOf(v);
    ASSERT_EQ(blocks.size(), 5u) << c.appid;
    EXPECT_EQ(blocks[0], "Добро пожаловать в программу");
    EXPECT_EQ(blocks[2], "[Описание программы]");
    EXPECT_TRUE(blocks[3].starts_with(c.firstWords)) << blocks[3];
    EXPECT_EQ(blocks[4], c.buttons);
  }
}

TEST_F(ApplicationTest, OnlyTheCloseButtonWorksUntilTheScreensOfTheOthersExist) {
  launchApp();
  WelcomeScreen w(app->context(), Greeting::NewInstallation);
  const Value view = w.view();
  for (const Value& block : *view["children"].asList())
    if (block["kind"].text() == "buttons")
      for (const Value& b : *block["buttons"].asList()) {
        EXPECT_FALSE(b["enabled"].boolValue());
        EXPECT_FALSE(w.tap(b["id"].text()).ok());
      }
  EXPECT_FALSE(w.closed());
  EXPECT_TRUE(w.tap("welcome:close").ok());
  EXPECT_TRUE(w.closed());
}

TEST_F(ApplicationTest, TheGreetingSpeaksTheInstallationsLanguage) {
  launchApp(1, "1.0", 2);
  const Value v = WelcomeScreen(app->context(), Greeting::Update).view();
  EXPECT_NE(v["close"]["caption"].text(), "Начать работу");
  EXPECT_NE(blocksOf(v)[0], "Добро пожаловать в новую версию программы");
}

}  // namespace
}  // namespace lad::shell
