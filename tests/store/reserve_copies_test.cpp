#include "store/reserve_copies.h"

#include <gtest/gtest.h>

#include <set>

#include "store/restore.h"
#include "tests/store/store_fixture.h"

namespace lad {
namespace {

using namespace std::chrono_literals;

class ReserveCopiesTest : public testing::StoreTest {
 protected:
  std::set<std::string> databases() const {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(reserv()))
      if (entry.path().extension() == ".sqlite") names.insert(entry.path().filename());
    return names;
  }
  void connectOnce() { StoreBracket bracket = store->connectToBase(); }
};

TEST_F(ReserveCopiesTest, OneCopyADayNamedAfterYesterdayAndTheFolderKeepsFourOfThem) {
  open();
  ASSERT_TRUE(fromOldVersionNewRestore(*store));
  connectOnce();
  connectOnce();
  EXPECT_EQ(databases(), (std::set<std::string>{"260329.sqlite", "pregnant.sqlite"}));

  for (int day = 0; day < 5; ++day) {
    clock->advance(24h);
    connectOnce();
  }
  EXPECT_EQ(databases(), (std::set<std::string>{"260331.sqlite", "260401.sqlite", "260402.sqlite",
                                                "260403.sqlite", "pregnant.sqlite"}));
  EXPECT_EQ(testing::readFile(reserv() / "260403.sqlite"),
            testing::readFile(reserv() / "pregnant.sqlite"));
}

TEST_F(ReserveCopiesTest, ABrokenLiveFileIsNeitherCopiedNorOverwrittenAndTheCopiesStay) {
  open();
  ASSERT_TRUE(fromOldVersionNewRestore(*store));
  connectOnce();
  testing::writeFile(store->liveFile(), "this is no database");
  for (int day = 0; day < 6; ++day) {
    clock->advance(24h);
    StoreBracket bracket = store->connectToBase();
    if (bracket.db()) {
      EXPECT_FALSE(bracket.db()->prepare("select * from preg").ready());
    }
  }
  EXPECT_EQ(databases(), (std::set<std::string>{"260329.sqlite", "pregnant.sqlite"}));
  EXPECT_EQ(testing::readFile(store->liveFile()), "this is no database");
  EXPECT_TRUE(isSoundDatabase(reserv() / "260329.sqlite"));
}

}  // namespace
}  // namespace lad
