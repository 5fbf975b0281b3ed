#include "core/time_list.h"

#include <gtest/gtest.h>

namespace lad {
namespace {

TEST(TimeList, ComparesTimesAsMinutesAndSortsKeepingTheOrderOfEqualTimes) {
  EXPECT_EQ(timeCompare("10:30", "09:15"), 75);
  EXPECT_EQ(timeCompare("25:00", "23:59"), 61);  // hours past midnight
  EXPECT_EQ(timeCompare("07:05", "07:05"), 0);
  EXPECT_EQ(timeCompare("9:30", "09:30"), -30);  // no two-digit hour: "9:3" and "0"
  EXPECT_EQ(timeCompare("", "00:01"), -1);
  EXPECT_EQ(timeCompare("ч:10", "00:00"), 0);  // three characters, not three bytes
  EXPECT_EQ(timeCompare("чч:10", "00:00"), 10);
  // Runs of 19 or more digits read as the int limits, so neither the minutes nor their
  // difference can overflow.
  EXPECT_EQ(timeCompare("00:99999999999999999999", "00:-99999999999999999999"), 4294967295);
  EXPECT_EQ(timeCompare("9999999999999999999", "00:00"), 2147543587);  // 999 h and the limit
  EXPECT_EQ(sortValueByTime(0, "10:00<td>a<end>08:30<td>b<end>09:00<td>c"),
            "08:30<td>b<end>09:00<td>c<end>10:00<td>a");
  EXPECT_EQ(sortValueByTime(5, "09:00<td>1<end>08:00<td>x<end>09:00<td>2<end>09:00<td>3"),
            "08:00<td>x<end>09:00<td>1<end>09:00<td>2<end>09:00<td>3");
  EXPECT_EQ(sortValueByTime(0, "12:00<td>a<end>"), "<end>12:00<td>a");  // an empty item is 00:00
  EXPECT_EQ(sortValueByTime(0, "not a time"), "not a time");
  EXPECT_EQ(sortValueByTime(0, ""), "");
}

}  // namespace
}  // namespace lad
