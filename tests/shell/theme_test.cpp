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

// The colours themselves are the screenshots'.
TEST_F(ThemeTest, ABackgroundWithoutAHighlightKeepsTheLastOneAndAnUnknownIdChangesNothing) {
  correctBackground(values(), 3);
  const std::string highlight = values().themeHighlightColour;
  correctBackground(values(), 7);
  correctBackground(values(), 42);
  EXPECT_EQ(values().themeHighlightColour, highlight);
  EXPECT_TRUE(values().themeDarkIcons) << "the dark icons of 7";
}

// The list refuses what is no background; a choice redraws the session with the background
// and the lock with its darker form, and outlives a launch.
TEST_F(ThemeTest, ABackgroundChosenInTheSessionIsShownAndOutlivesALaunch) {
  Session s(*app);
  tap(s, "welcome:close");
  tap(s, "menu:42");
  for (const char* bad :
       {"background:0", "background:10", "background:x", "background:5x", "menu:42"})
    EXPECT_FALSE(tap(s, bad).ok()) << bad;
  EXPECT_TRUE(tap(s, backgroundTarget(4)).installationChanged);

  s.askNewPassword();  // dark-icon theme: the "b-" forms
  EXPECT_EQ(s.view()["theme"]["picture"].text(), "bd640-4.png");
  launchApp();
  EXPECT_EQ(values().backgroundId, 4);
}

}  // namespace
}  // namespace lad::shell
