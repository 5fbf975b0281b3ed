#include "health/contraction_store.h"

#include <gtest/gtest.h>

#include "tests/store/store_fixture.h"

namespace lad::health {
namespace {

using namespace std::chrono_literals;

std::vector<std::int64_t> idsOf(const std::vector<Contraction>& rows) {
  std::vector<std::int64_t> out;
  for (const auto& c : rows) out.push_back(c.schid);
  return out;
}

class ContractionStoreTest : public lad::testing::StoreTest {
 protected:
  void SetUp() override { openDiary(1); }
};

TEST_F(ContractionStoreTest, AddLoadAndDelete) {
  const Date day = testNow();
  // Stored out of time order within a day: a day's rows come back in insertion order, days in
  // calendar order.
  const std::vector<Contraction> rows = {
      {-1, day + 2h, day + 2h + 50s, 50, 0},
      {-1, day + 1h, day + 1h + 40s, 40, 0},
      {-1, day - 24h, day - 24h + 30s, 30, 0},
  };
  std::vector<std::int64_t> ids;
  for (const auto& c : rows) ids.push_back(addContraction(*store, c, "P1"));
  EXPECT_TRUE(store->changed());
  EXPECT_GT(addContraction(*store, rows[0], "P2"), 0);

  auto loaded = loadContractions(*store, "P1");
  ASSERT_EQ(loaded.size(), 3u);
  EXPECT_EQ(idsOf(loaded), (std::vector{ids[2], ids[0], ids[1]}));
  EXPECT_EQ(loaded[1].start, rows[0].start);
  EXPECT_EQ(loaded[1].end, rows[0].end);
  EXPECT_EQ(cell("select startdates from pregschvatki where schid=" + std::to_string(ids[0])),
            "2026-03-30 12:00:00");

  EXPECT_TRUE(deleteContraction(*store, ids[0]));
  EXPECT_TRUE(store->changed());
  EXPECT_EQ(idsOf(loadContractions(*store, "P1")), (std::vector{ids[2], ids[1]}));
  EXPECT_TRUE(loadContractions(*store, "none").empty());
}

TEST_F(ContractionStoreTest, ABrokenDatabaseGivesEmptyResults) {
  std::filesystem::remove(store->liveFile());
  std::filesystem::create_directories(store->liveFile());
  const Contraction c{-1, testNow(), testNow() + 10s, 10, 0};
  EXPECT_EQ(addContraction(*store, c, "P1"), -1);
  EXPECT_TRUE(loadContractions(*store, "P1").empty());
  EXPECT_FALSE(deleteContraction(*store, 1));
}

}  // namespace
}  // namespace lad::health
