#include "shell/main_menu.h"

#include <gtest/gtest.h>

#include "core/launch.h"
#include "tests/support/test_files.h"

namespace lad::shell {
namespace {

using namespace std::chrono_literals;

class MainMenuTest : public ::testing::Test {
 protected:
  MainMenuTest() {
    context = std::make_unique<Context>(ContextOptions{1, 1, dir.path(), "1.0", nullptr, {}});
    launch(*context);
    context->values().pageDirty.fill(0);
  }

  const Value* row(Value& view, const std::string& id) {
    for (const Value& r : *view["children"].asList()->front()["rows"].asList())
      if (r["id"].text() == id) return &r;
    return nullptr;
  }
  bool checkedInView(const std::string& id) {
    Value view = menu().view();
    const Value* r = row(view, id);
    return r && (*r)["checked"].boolValue();
  }
  MainMenu menu() { return MainMenu(*context); }
  SettingsStore reread() { return SettingsStore(context->settings().file()); }

  lad::testing::TempDir dir;
  std::unique_ptr<Context> context;
};

TEST_F(MainMenuTest, ViewListsTheMenuTableWithUnbuiltFeaturesDisabled) {
  Value view = menu().view();
  EXPECT_EQ(view["kind"].text(), "page");
  EXPECT_EQ(view["title"].text(), "Ладанея");
  const List& rows = *view["children"].asList()->front()["rows"].asList();
  ASSERT_EQ(rows.size(), context->values().tabMenu.size());
  EXPECT_EQ(rows[0]["id"].text(), "menu:1");
  EXPECT_EQ(rows[0]["caption"].text(), "Сегодня");
  EXPECT_EQ(rows[0]["icon"].text(), "icon-today.png");
  EXPECT_EQ(rows[0]["enabled"], Value(false));
  EXPECT_TRUE(rows[0]["checked"].isNull());  // not a switch

  Value& v = view;
  EXPECT_EQ((*row(v, "menu:51"))["enabled"], Value(true));
  EXPECT_EQ((*row(v, "menu:51"))["checked"], Value(false));
  EXPECT_EQ((*row(v, "menu:52"))["enabled"], Value(true));   // the session opens the lock
  EXPECT_EQ((*row(v, "menu:53"))["checked"], Value(false));  // tilt is off at first
  EXPECT_EQ((*row(v, "menu:55"))["checked"], Value(true));
  EXPECT_EQ((*row(v, "menu:0"))["comment"].text(), "Версия 1.0");
}

TEST_F(MainMenuTest, SwitchesStoreTheirSettingAndSharedValue) {
  MainMenu m = menu();
  EventResult r = m.tap("menu:51");
  ASSERT_TRUE(r.ok()) << r.error;
  EXPECT_TRUE(r.installationChanged);
  EXPECT_EQ(r.redrawAfter, 0ms);
  EXPECT_TRUE(reread().boolForKey("emptyNote"));
  EXPECT_EQ(context->values().pageDirty[8], 1);  // the diary page rebuilds
  EXPECT_TRUE(checkedInView("menu:51"));

  // The tilt switch shows the opposite of the stored accStop.
  ASSERT_TRUE(m.tap("menu:53").ok());
  EXPECT_FALSE(context->values().accStop);
  EXPECT_EQ(reread().get("accStop"), Value(false));
  EXPECT_TRUE(checkedInView("menu:53"));
  ASSERT_TRUE(m.tap("menu:53").ok());
  EXPECT_TRUE(context->values().accStop);
  EXPECT_FALSE(checkedInView("menu:53"));

  EventResult chat = m.tap("menu:55");
  ASSERT_TRUE(chat.ok());
  EXPECT_EQ(chat.redrawAfter, 1s);
  EXPECT_FALSE(context->values().chatIndi);
  EXPECT_FALSE(reread().boolForKey("chatIndi"));

  ASSERT_TRUE(m.tap("menu:56").ok());
  EXPECT_FALSE(context->values().showRec);
}

TEST_F(MainMenuTest, RefusedTapsChangeNothing) {
  const auto before = context->values().tabMenu;
  MainMenu m = menu();
  for (const char* target : {"menu:1", "menu:52", "menu:54", "menu:0", "menu:999",
                             "menu:", "menu:5x", "51", "", "menu:-51"}) {
    EventResult r = m.tap(target);
    EXPECT_FALSE(r.ok()) << target;
    EXPECT_FALSE(r.installationChanged) << target;
  }
  EXPECT_EQ(context->values().tabMenu, before);
  EXPECT_FALSE(reread().contains("pass"));
  EXPECT_FALSE(reread().contains("pillsAlarm"));
  EXPECT_NE(m.tap("menu:52").error.find("not available"), std::string::npos);
  EXPECT_NE(m.tap("menu:999").error.find("no menu item"), std::string::npos);
}

}  // namespace
}  // namespace lad::shell
