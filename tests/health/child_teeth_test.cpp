#include "health/child_teeth.h"

#include <gtest/gtest.h>

#include "core/ids.h"
#include "store/records.h"
#include "tests/store/store_fixture.h"

namespace lad::health {
namespace {

class ChildTeethTest : public testing::StoreTest {
 protected:
  void SetUp() override { openDiary(2); }
  Date day(int offset) const { return context->dates().addDays(testNow(), offset); }
  void record(int offset, const std::string& codes, const std::string& gid = newID2(1, 1)) {
    StoreBracket bracket = store->connectToBase();
    insertValue(*store, bracket, "tooth", codes, day(offset), gid, true, false);
  }
  const std::string kChild = newID2(1, 1);
};

TEST_F(ChildTeethTest, TeethOfADayFollowEarlierRecordsInDateOrder) {
  // Written out of order: the tooth out (105) is dated after the tooth in (5), so it wins.
  record(-2, "105<tr>6");
  record(-5, "5<tr>15<tr>16");
  record(-1, "7<tr>25<tr>0<tr>120<tr>abc");
  record(0, "1<tr>2");  // the asked day's own record does not count
  record(-3, "3", "another child");
  EXPECT_EQ(toothForDay(*store, day(-5), kChild), "");
  EXPECT_EQ(toothForDay(*store, day(-4), kChild), "5<tr>15<tr>16");
  EXPECT_EQ(toothForDay(*store, day(-1), kChild), "6<tr>15<tr>16");
  EXPECT_EQ(toothForDay(*store, day(0), kChild), "6<tr>7<tr>15<tr>16");
  EXPECT_EQ(toothForDay(*store, day(1), kChild), "1<tr>2<tr>6<tr>7<tr>15<tr>16");
}

TEST_F(ChildTeethTest, ChangesTakeOneStateToAnother) {
  const TeethState before = applyTeeth({}, "1<tr>5<tr>20");
  const TeethState after = applyTeeth(before, "101<tr>6<tr>0<tr>21");
  EXPECT_EQ(teethText(after), "5<tr>6<tr>20");
  EXPECT_EQ(toothChanges(before, after), "101<tr>6");
  EXPECT_EQ(toothChanges(after, after), "");
  EXPECT_EQ(applyTeeth(before, toothChanges(before, after)), after);
}

}  // namespace
}  // namespace lad::health
