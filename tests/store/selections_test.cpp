#include "store/selections.h"

#include <gtest/gtest.h>

#include "tests/store/store_fixture.h"

namespace lad {
namespace {

using Tags = std::vector<std::string>;

class SelectionsTest : public testing::StoreTest {};

TEST_F(SelectionsTest, TicksComeAndGoPerListAndProfile) {
  for (int appid : {1, 2}) {
    openDiary(appid);
    setCheckData(*store, 7, "ITEM-A", true, "MINE");
    setCheckData(*store, 7, "ITEM-A", true, "MINE");
    setCheckData(*store, 7, "ITEM-B", true, "MINE");
    setCheckData(*store, 8, "ITEM-C", true, "MINE");
    setCheckData(*store, 7, "ITEM-A", true, "OTHER");
    EXPECT_EQ(loadCheckData(*store, 7, "MINE"), (Tags{"ITEM-A", "ITEM-B"}))
        << "a second tick keeps one row; edition " << appid;

    setCheckData(*store, 7, "ITEM-A", false, "MINE");
    EXPECT_EQ(loadCheckData(*store, 7, "MINE"), Tags{"ITEM-B"});
    EXPECT_EQ(loadCheckData(*store, 7, "OTHER"), Tags{"ITEM-A"}) << "another profile's tick";
    EXPECT_EQ(loadCheckData(*store, 8, "MINE"), Tags{"ITEM-C"});
  }
  EXPECT_EQ(cell("select count(*) from childselect where childguid='MINE'"), "2");
}

}  // namespace
}  // namespace lad
