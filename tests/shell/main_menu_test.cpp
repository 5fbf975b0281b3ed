#include "shell/main_menu.h"

#include <gtest/gtest.h>

#include "tests/shell/application_fixture.h"

namespace lad::shell {
namespace {

using namespace std::chrono_literals;

class MainMenuTest : public testing::ApplicationTest {
 protected:
  MainMenuTest() {
    launchApp();
    context = &app->context();
  }

  const Value* row(Value& view, const std::string& id) {
    for (const List* list : lists(view))
      for (const Value& r : *list)
        if (r["id"].text() == id) return &r;
    return nullptr;
  }
  static std::vector<const List*> lists(const Value& view) {
    std::vector<const List*> found;
    for (const Value& child : *view["children"].asList())
      if (child["kind"].text() == "list") found.push_back(child["rows"].asList());
    return found;
  }
  bool checkedInView(const std::string& id) {
    Value view = menu().view();
    const Value* r = row(view, id);
    return r && (*r)["checked"].boolValue();
  }
  MainMenu menu() { return MainMenu(*context, app->store()); }
  SettingsStore reread() { return SettingsStore(context->settings().file()); }

  Context* context = nullptr;
};

TEST_F(MainMenuTest, CardsComeFirstAndAnOpenCardShowsItsProfileItems) {
  MainMenu m = menu();
  Value view = m.view();
  const Value& card = view["children"].asList()->front();
  ASSERT_EQ(card["kind"].text(), "card");
  const std::string guid = "00000000-0000-0000-0001-000000000001";
  // The first launch starts a pregnancy today, due in 280 days.
  EXPECT_EQ((*card["lines"].asList())[0].text(), "23.11.2026 - 30.08.2027");
  EXPECT_EQ(row(view, "menu:9"), nullptr);  // profile items wait for an open card

  ASSERT_TRUE(m.tap("card:" + guid).ok());
  EXPECT_EQ(m.activeId(), guid);
  view = m.view();
  ASSERT_EQ(lists(view).size(), 2u);
  EXPECT_EQ((*row(view, "menu:9"))["enabled"], Value(false));  // its screen is not built

  // A page without a screen is not opened (one with a screen goes to the ring: the session's).
  EXPECT_FALSE(m.tap("menu:9").ok());

  ASSERT_TRUE(m.tap("card:" + guid).ok());  // touching an open card closes it
  EXPECT_EQ(m.activeId(), "");
  EXPECT_EQ(row(view = m.view(), "menu:9"), nullptr);
  EXPECT_FALSE(m.tap("menu:3").ok());
  EXPECT_FALSE(m.tap("card:00000000-0000-0000-0001-000000000009").ok());

  EXPECT_EQ((*row(view, "menu:52"))["enabled"], Value(false)) << "nothing here opens the lock";
  int asked = 0;
  m.onCommand(52, [&] {
    ++asked;
    return EventResult();
  });
  EXPECT_EQ((*row(view = m.view(), "menu:52"))["enabled"], Value(true)) << "a row with an action";
  EXPECT_TRUE(m.tap("menu:52").ok());
  EXPECT_EQ(asked, 1);
}

TEST_F(MainMenuTest, SwitchesStoreTheirSettingAndSharedValue) {
  MainMenu m = menu();
  EventResult r = m.tap("menu:51");
  ASSERT_TRUE(r.ok()) << r.error;
  EXPECT_TRUE(r.installationChanged);
  EXPECT_TRUE(reread().boolForKey("emptyNote"));

  // The tilt switch shows the opposite of the stored accStop.
  ASSERT_TRUE(m.tap("menu:53").ok());
  EXPECT_FALSE(context->values().accStop);
  EXPECT_EQ(reread().get("accStop"), Value(false));
  EXPECT_TRUE(checkedInView("menu:53"));

  EventResult chat = m.tap("menu:55");
  ASSERT_TRUE(chat.ok());
  EXPECT_EQ(chat.redrawAfter, 1s);
  EXPECT_FALSE(reread().boolForKey("chatIndi"));
}

TEST_F(MainMenuTest, RefusedTapsChangeNothing) {
  const auto before = context->values().tabMenu;
  MainMenu m = menu();
  for (const char* target : {"menu:2", "menu:52", "menu:21", "menu:0", "menu:999",
                             "menu:", "menu:5x", "51", "", "menu:-51"}) {
    EventResult r = m.tap(target);
    EXPECT_FALSE(r.ok()) << target;
    EXPECT_FALSE(r.installationChanged) << target;
  }
  EXPECT_EQ(context->values().tabMenu, before);
  EXPECT_FALSE(reread().contains("pass"));
}

}  // namespace
}  // namespace lad::shell
