#include "core/menu_table.h"

#include <gtest/gtest.h>

#include <set>

namespace lad {
namespace {

std::string passThrough(std::string_view s) {
  return std::string(s);
}

std::vector<int> ids(const List& menu) {
  std::vector<int> out;
  for (const Value& row : menu) out.push_back(static_cast<int>(row["id"].intValue()));
  return out;
}

TEST(MenuTable, EveryEditionHasUniqueIdsAndTheSwitches) {
  for (int appid : {1, 2, 3, 14})
    for (int langid : {1, 2, 3}) {
      const List menu = buildMenuTable(appid, langid, "1.0", passThrough);
      const auto all = ids(menu);
      EXPECT_EQ(std::set<int>(all.begin(), all.end()).size(), all.size()) << appid;
      for (int sw : {51, 52, 53, 54, 55, 56}) EXPECT_TRUE(menuRow(menu, sw)) << appid << sw;
      EXPECT_GT(homePageOf(menu), 0);
      EXPECT_EQ(menuRow(menu, 34) != nullptr, langid == 1);
    }
  EXPECT_FALSE(menuRow(buildMenuTable(2, 1, "1.0", passThrough), 6));  // no contractions
  EXPECT_FALSE(menuRow(buildMenuTable(3, 1, "1.0", passThrough), 31));
}

TEST(MenuTable, MenuItemCheckMarksOneRow) {
  List menu = buildMenuTable(1, 1, "1.0", passThrough);
  const List before = menu;
  EXPECT_EQ(menuItemCheck(menu, 999, true), -1);
  EXPECT_EQ(menu, before);
  EXPECT_EQ(menuItemCheck(menu, 53, true), 29);
  EXPECT_EQ((*menuRow(menu, 53)->find("checked")), Value(true));
  EXPECT_FALSE(menuRow(menu, 52)->contains("checked"));
}

}  // namespace
}  // namespace lad
