#include "shell/child/child_dialog.h"

#include <gtest/gtest.h>

#include <map>

#include "core/ids.h"
#include "shell/main_menu.h"
#include "store/profiles.h"
#include "store/setup_data.h"
#include "tests/shell/application_fixture.h"

namespace lad::shell {
namespace {

class ChildDialogTest : public testing::ApplicationTest {
 protected:
  ChildDialogTest() { launchApp(2); }
  static std::string sourceOf(const ChildDialog& d, std::string_view field) {
    return (*d.editor().row(field))["source"].text();
  }
  static const Value* entry(const ChildDialog& d, std::string_view field, std::string_view id) {
    for (const Value& e : *(*d.editor().row(field))["listdata"].asList())
      if (e["id"].text() == id) return &e;
    return nullptr;
  }
  void storeBirthTime(const std::string& gid, const std::string& text) {
    StoreBracket bracket = app->store().connectToBase();
    ASSERT_TRUE(bracket.db()->execute("update child set sbirthtime='" + text +
                                      "', documents='[1]' where childguid='" + gid + "'"));
  }
  const std::string kBlood = newID2(2, 34);
  const std::string kEgg = newID2(2, 42), kFish = newID2(2, 45);
};

TEST_F(ChildDialogTest, ANewChildIsSavedWithTheKeysOfItsDialog) {
  ChildDialog d(*app, std::nullopt);
  EXPECT_EQ(d.editor().row("remove"), nullptr);
  EXPECT_EQ(sourceOf(d, "rost"), "") << "a measure not taken shows nothing";

  d.change("name", Value("Лев"));
  d.change("sbirthdate", Value("02.11.2026"));
  d.change("birthtime", Value("07:45"));
  d.change("sex", Value(1));
  d.change("ves", Value("3,45"));
  d.change("blood", Value(kBlood));
  d.change("allerg", Value(List{Value(kEgg), Value(kFish)}));
  EXPECT_TRUE((*entry(d, "allerg", kFish))["checked"].boolValue()) << "a tick stays on redraw";
  ASSERT_FALSE(d.close());
  const std::string gid = d.finish(nullptr);

  // The name is read back by the card below.
  const Map saved = loadSetupData(app->store(), gid);
  std::string keys;
  for (const char* key : {"sbirthdate", "sbirthtime", "sex", "ves", "blood", "allerg"})
    keys += saved[key].toJson() + " ";
  EXPECT_EQ(keys, R"("2026-11-02" "07:45" 1 "3,45" ")" + kBlood + R"(" ")" + kEgg + "<tr>" + kFish +
                      R"(" )");

  // Each child has a card with its birth date and age, in the order of birth.
  const Value menu = MainMenu(app->context(), app->store()).view();
  const List& children = *menu["children"].asList();
  EXPECT_EQ(children[0]["name"].text(), "Лев");
  EXPECT_EQ(children[0]["lines"], Value(List{Value("02.11.2026"), Value("21 день")}));
}

TEST_F(ChildDialogTest, ABirthTimeThatIsNoClockKeepsTheStoredOneAndTheRestIsSaved) {
  const std::string gid = newID2(1, 1);
  storeBirthTime(gid, "2026-11-02 06:30:00");
  ChildDialog d(*app, gid);
  EXPECT_EQ(sourceOf(d, "birthtime"), "06:30") << "an older full moment shows its clock";
  d.change("birthtime", Value("25:99"));
  d.change("name", Value("Ян"));
  d.finish(nullptr);
  Map saved = loadSetupData(app->store(), gid);
  EXPECT_EQ(saved["sbirthtime"].text(), "2026-11-02 06:30:00");
  EXPECT_EQ(saved["name"].text(), "Ян");
  EXPECT_EQ(saved["documents"].text(), "[1]") << "what the dialog does not show stays";

  storeBirthTime(gid, "около полудня");
  ChildDialog again(*app, gid);
  EXPECT_EQ(sourceOf(again, "birthtime"), "");
  again.change("birthtime", Value(""));
  again.finish(nullptr);
  EXPECT_FALSE(loadSetupData(app->store(), gid).contains("sbirthtime"));
}

TEST_F(ChildDialogTest, ARemovedChildLeavesTheCards) {
  ChildDialog add(*app, std::nullopt);
  add.change("name", Value("Ия"));
  const std::string gid = add.finish(nullptr);
  ChildDialog d(*app, gid);
  ASSERT_TRUE(d.removalQuestion());
  d.confirmRemoval();
  EXPECT_EQ(d.finish(nullptr), gid);
  const List left = loadProfils(app->store());
  ASSERT_EQ(left.size(), 1u);
  EXPECT_EQ(left[0]["guid"].text(), newID2(1, 1));
}

// The pregnancy's title page and counter share row numbers with the child's graphs, which are
// still to come: a child's card must not open them.
TEST_F(ChildDialogTest, AChildsCardOffersOnlyThePagesOfAChild) {
  MainMenu m(app->context(), app->store());
  ASSERT_TRUE(m.tap("card:" + newID2(1, 1)).ok());
  std::map<std::string, bool> enabled;
  const Value view = m.view();
  for (const Value& child : *view["children"].asList())
    if (child["kind"].text() == "list")
      for (const Value& r : *child["rows"].asList())
        enabled[r["id"].text()] = r["enabled"].boolValue();
  EXPECT_TRUE(enabled.at("menu:8"));
  EXPECT_FALSE(enabled.at("menu:3"));
  EXPECT_FALSE(m.tap("menu:3").ok());
}

}  // namespace
}  // namespace lad::shell
