#include "shell/application.h"

#include <gtest/gtest.h>

#include "core/launch.h"
#include "shell/app_manifest.h"
#include "shell/welcome_screen.h"
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

// A new installation is offered the cloud except in the 3D edition.
TEST_F(ApplicationTest, ANewInstallationsGreetingOffersTheCloudWhereTheEditionHasIt) {
  for (auto [appid, buttons] : {std::pair{1, "[Настройки|Облако]"}, {14, "[Настройки]"}}) {
    launchApp(appid);
    const auto blocks = blocksOf(WelcomeScreen(app->context(), Greeting::NewInstallation).view());
    ASSERT_EQ(blocks.size(), 5u) << appid;
    EXPECT_EQ(blocks[4], buttons) << appid;
  }
}

Value manifestOf(int appid, int langid) {
  lad::testing::TempDir dir;
  Context context(ContextOptions{appid, langid, dir.path(), "1.0", nullptr, {}});
  launch(context);
  return webAppManifest(context);
}

std::vector<std::string> shortcutUrls(const Value& manifest) {
  std::vector<std::string> urls;
  for (const Value& s : *manifest["shortcuts"].asList()) urls.push_back(s["url"].text());
  return urls;
}

TEST(AppManifest, EachEditionOffersItsShortcutsInItsLanguage) {
  const struct {
    int appid, langid;
    const char* lang;
    std::vector<std::string> urls;
  } cases[] = {{1, 1, "ru", {"/?shortcut=SCHVATKI", "/?shortcut=NEWNOTE"}},
               {2, 3, "fr", {"/?shortcut=NEWNOTE"}},
               {3, 2, "de", {"/?shortcut=NEWNOTE"}}};
  for (const auto& c : cases) {
    const Value manifest = manifestOf(c.appid, c.langid);
    EXPECT_EQ(manifest["lang"].text(), c.lang) << c.appid;
    EXPECT_EQ(shortcutUrls(manifest), c.urls) << c.appid;
  }
}

}  // namespace
}  // namespace lad::shell
