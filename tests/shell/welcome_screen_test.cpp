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

// The update's greeting keeps its text as it has always been, typos and all; a new installation
// is offered the cloud except in the 3D edition.
TEST_F(ApplicationTest, TheGreetingsOfAnUpdateAndOfANewInstallation) {
  launchApp(3);
  const Value update = WelcomeScreen(app->context(), Greeting::Update).view();
  EXPECT_EQ(update["caption"].text(), "Луновея");
  EXPECT_EQ(blocksOf(update).back(),
            "Если у Вас возникнут сложности или вопросы по программе, к вашимa "
            "услугам раздел Поддержка на главном экране программе.");
  for (auto [appid, buttons] : {std::pair{1, "[Настройки|Облако]"},
                                {2, "[Настройки|Облако]"},
                                {3, "[Настройки|Облако]"},
                                {14, "[Настройки]"}}) {
    launchApp(appid);
    const auto blocks = blocksOf(WelcomeScreen(app->context(), Greeting::NewInstallation).view());
    ASSERT_EQ(blocks.size(), 5u) << appid;
    EXPECT_EQ(blocks[4], buttons) << appid;
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

}  // namespace
}  // namespace lad::shell
