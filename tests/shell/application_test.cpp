#include "shell/application.h"

#include <gtest/gtest.h>

#include "tests/shell/application_fixture.h"

namespace lad::shell {
namespace {

using namespace std::chrono_literals;
using lad::testing::ApplicationTest;

TEST_F(ApplicationTest, TheGreetingComesOncePerVersionAndResetsTheActivationCount) {
  launchApp(1, "1.0");
  settings().set("becomeActive", 7);
  EXPECT_EQ(app->takeVersionRecord(), Greeting::NewInstallation);
  EXPECT_EQ(app->takeVersionRecord(), std::nullopt) << "once per launch";
  EXPECT_TRUE(settings().boolForKey("version1-0"));
  EXPECT_FALSE(settings().boolForKey("FirstStart"));
  EXPECT_EQ(settings().integerForKey("becomeActive"), 0);
  EXPECT_TRUE(settings().contains("Rating"));

  launchApp(1, "1.0");
  EXPECT_EQ(app->takeVersionRecord(), std::nullopt) << "once per version";

  // Without the old setting Date a pregnancy diary greets every version as new.
  launchApp(1, "1.1");
  EXPECT_EQ(app->takeVersionRecord(), Greeting::NewInstallation);

  settings().set("Date", clock->now());
  settings().synchronize();
  launchApp(1, "1.2");
  EXPECT_EQ(app->takeVersionRecord(), Greeting::Update);
}

TEST_F(ApplicationTest, EveryTenthActivationAsksForAReview) {
  launchApp();
  int asked = 0;
  app->onReviewRequest([&] { ++asked; });
  for (int i = 0; i < 9; ++i) app->becomeActive();
  EXPECT_EQ(asked, 0);
  app->becomeActive();
  EXPECT_EQ(asked, 1);
  EXPECT_EQ(settings().integerForKey("becomeActive"), 10);
  for (int i = 0; i < 10; ++i) app->becomeActive();
  EXPECT_EQ(asked, 2);
}

TEST_F(ApplicationTest, TheLockReturnsAfterMoreThanFiveWholeSecondsAway) {
  launchApp();
  EXPECT_FALSE(app->becomeActive().lockDue) << "no password set";
  settings().set("pass", true);
  EXPECT_TRUE(app->becomeActive().lockDue) << "the first activation after a launch asks";

  app->resignActive();
  clock->advance(5s + 900ms);
  EXPECT_FALSE(app->becomeActive().lockDue);
  app->resignActive();
  clock->advance(6s);
  EXPECT_TRUE(app->becomeActive().lockDue);

  app->resignActive();
  launchApp();
  EXPECT_FALSE(settings().contains("deactive")) << "a launch forgets the last deactivation";
  EXPECT_TRUE(app->becomeActive().lockDue);
}

TEST_F(ApplicationTest, AHandedOverFileIsKeptAndTheMessageNamesWhereToUseIt) {
  launchApp();
  MessageBox m = app->openURL("/tmp/scan.pdf");
  EXPECT_EQ(app->context().values().pendingPdf, "/tmp/scan.pdf");
  EXPECT_EQ(m.caption, "Файл PDF");
  EXPECT_EQ(m.button, "ОК");
  EXPECT_TRUE(m.text.starts_with("Теперь Вам следует перейти в режим редактирования анализов"));
  settings().set("doctorAuthCode", "K-17");
  EXPECT_TRUE(app->openURL("/tmp/scan.pdf")
                  .text.starts_with("Вы можете прикрепить этот файл к сообщению для Вашего врача"));
}

}  // namespace
}  // namespace lad::shell
