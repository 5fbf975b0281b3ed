#include "shell/theme.h"

#include <gtest/gtest.h>

#include "shell/background_list.h"
#include "shell/lock/password_lock.h"
#include "tests/shell/application_fixture.h"

namespace lad::shell {
namespace {

class ThemeTest : public lad::testing::ApplicationTest {
 protected:
  ThemeTest() { launchApp(); }
  ProcessValues& values() { return app->context().values(); }
};

TEST_F(ThemeTest, ABackgroundWithoutAHighlightKeepsTheLastOneAndAnUnknownIdChangesNothing) {
  EXPECT_EQ(themeOf(0), nullptr);
  EXPECT_EQ(themeOf(11), nullptr);
  correctBackground(values(), 3);
  const std::string highlight = values().themeHighlightColour;
  EXPECT_EQ(highlight, "rgba(180,120,0,1)");
  correctBackground(values(), 7);
  EXPECT_EQ(values().themeHighlightColour, highlight);
  EXPECT_TRUE(values().themeDarkIcons);
  correctBackground(values(), 42);
  EXPECT_TRUE(values().themeDarkIcons);
  EXPECT_EQ(values().themeCaptionColour, "rgba(179,0,0,1)");
}

TEST_F(ThemeTest, ChoosingABackgroundStoresItRedrawsEverythingAndOutlivesALaunch) {
  BackgroundList list(app->context());
  const Value view = list.view();
  const List& rows = *view["children"].asList()->at(0)["rows"].asList();
  ASSERT_EQ(rows.size(), 9u);
  EXPECT_EQ(rows[0]["icon"].text(), "bs-1.png");
  EXPECT_TRUE(rows[1]["checked"].boolValue());  // 2 by default
  EXPECT_FALSE(rows[4]["checked"].boolValue());
  for (const char* bad :
       {"background:0", "background:10", "background:x", "background:5x", "menu:42"})
    EXPECT_FALSE(list.tap(bad).ok()) << bad;
  EXPECT_FALSE(list.closed());

  EXPECT_TRUE(list.tap(backgroundTarget(8)).installationChanged);
  EXPECT_TRUE(list.closed());
  EXPECT_EQ(settings().integerForKey("backgroundId"), 8);
  EXPECT_TRUE(values().themeDarkIcons);

  launchApp();
  EXPECT_EQ(values().backgroundId, 8);
  EXPECT_TRUE(values().themeDarkHeader);
  EXPECT_EQ(values().themeAccentColour, "rgba(54,119,176,1)");
}

TEST_F(ThemeTest, SessionShowsTheChosenBackgroundAndTheLockItsDarkerForm) {
  Session s(*app);
  EXPECT_EQ(s.view()["theme"]["picture"].text(), "bg640-2.png");
  tap(s, "welcome:close");
  tap(s, "menu:42");
  ASSERT_EQ(s.view()["children"].asList()->at(0)["rows"].asList()->size(), 9u);
  ASSERT_TRUE(tap(s, backgroundTarget(4)).ok());
  EXPECT_EQ(s.view()["theme"]["picture"].text(), "bg640-4.png");
  EXPECT_EQ(s.view()["theme"]["caption"].text(), "rgba(179,0,0,1)");

  s.askNewPassword();  // dark-icon theme: the "b-" forms
  EXPECT_EQ(s.view()["theme"]["picture"].text(), "bd640-4.png");
  EXPECT_EQ(s.view()["dots"].asList()->at(0).text(), "b-pass-e.png");
}

}  // namespace
}  // namespace lad::shell
