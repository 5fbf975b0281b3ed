#include "health/contraction_groups.h"

#include <gtest/gtest.h>

#include "tests/health/contraction_samples.h"
#include "tests/health/health_fixture.h"

namespace lad::health {
namespace {

using lad::testing::withPauses;

class ContractionGroupsTest : public lad::testing::HealthTest {};

TEST_F(ContractionGroupsTest, PausesOverAnHourSplitTheGroups) {
  auto list = withPauses(at("2026-03-30 14:05"), {300, 3600, 3601, 200, 5000}, 60);
  const auto groups = recountOst(list, context.dates());
  // The first group's name keeps the 12-hour clock; the others use 24 hours.
  ASSERT_EQ(groups.size(), 3u);
  EXPECT_EQ(groups[0], (ContractionGroup{"30.03.26 02:05-30.03.26 15:13", 3}));
  EXPECT_EQ(groups[1], (ContractionGroup{"30.03.26 16:13-30.03.26 16:18", 2}));
  EXPECT_EQ(groups[2], (ContractionGroup{"30.03.26 17:41", 1}));
  std::vector<std::int64_t> pauses;
  for (const auto& c : list) pauses.push_back(c.len2);
  EXPECT_EQ(pauses, (std::vector<std::int64_t>{0, 300, 3600, 0, 200, 0}));

  EXPECT_EQ(positionOf(groups, 0, 2), 2u);
  EXPECT_EQ(positionOf(groups, 2, 0), 5u);

  std::vector<Contraction> none;
  EXPECT_TRUE(recountOst(none, context.dates()).empty());
}

TEST_F(ContractionGroupsTest, RowTexts) {
  auto list = withPauses(at("2026-03-30 14:05"), {75}, 61);
  recountOst(list, context.dates());
  EXPECT_EQ(rowText(list[0], context),
            (ContractionRowText{"01:01", "30.03.2026 14:05:00", "первая схватка в группе"}));
  EXPECT_EQ(rowText(list[1], context),
            (ContractionRowText{"01:01", "30.03.2026 14:07:16", "через 01:15"}));
}

}  // namespace
}  // namespace lad::health
