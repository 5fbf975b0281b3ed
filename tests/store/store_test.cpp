#include "store/store.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "store/restore.h"
#include "tests/store/store_fixture.h"

namespace lad {
namespace {

class StoreBracketTest : public testing::StoreTest {};

TEST_F(StoreBracketTest, AMissingFileGivesAnEmptyBracketAndIsNotCreated) {
  open();
  {
    StoreBracket bracket = store->connectToBase();
    EXPECT_EQ(bracket.db(), nullptr);
  }
  EXPECT_FALSE(std::filesystem::exists(store->liveFile()));
}

TEST_F(StoreBracketTest, ABracketOpensTheLiveFileAndTracksWrites) {
  open();
  ASSERT_TRUE(fromOldVersionNewRestore(*store));
  {
    StoreBracket bracket = store->connectToBase();
    ASSERT_NE(bracket.db(), nullptr);
    EXPECT_FALSE(store->changed());
    EXPECT_TRUE(bracket.db()->execute("update preg set childname='Ася' where pregid=1"));
    bracket.markChanged();
  }
  EXPECT_TRUE(store->changed());
  { StoreBracket reading = store->connectToBase(); }
  EXPECT_FALSE(store->changed());
}

TEST_F(StoreBracketTest, BracketsOfTwoThreadsNeverInterleave) {
  open();
  ASSERT_TRUE(fromOldVersionNewRestore(*store));
  std::atomic<bool> secondOpened = false;
  std::thread second;
  {
    StoreBracket first = store->connectToBase();
    second = std::thread([&] {
      StoreBracket other = store->connectToBase();
      secondOpened = other.db() != nullptr;
    });
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    EXPECT_FALSE(secondOpened) << "the second bracket opened inside the first";
    ASSERT_NE(first.db(), nullptr);
  }
  second.join();
  EXPECT_TRUE(secondOpened);
}

}  // namespace
}  // namespace lad
