#include "health/child_intervals.h"

#include <gtest/gtest.h>

namespace lad::health {
namespace {

using Text = std::optional<std::string>;

TEST(ChildIntervals, CountIntervalSubtractsOverMidnightAndAddsWithoutCarryingSixty) {
  struct Case {
    Text start, end, interval, expected;
  };
  const Case cases[] = {
      {"23:30", "01:00", std::nullopt, "01:30"},
      {"23:30", "23:30", std::nullopt, "00:00"},
      {"9:5", "10:0", std::nullopt, "00:55"},
      {"01:30", std::nullopt, "00:30", "01:60"},  // exactly 60 minutes stay as they are
      {"23:50", std::nullopt, "00:30", "00:20"},
      {"22:00", std::nullopt, "03:15", "01:15"},
      {"10:00", "11:00", "01:00", std::nullopt},
      {"10:00", std::nullopt, std::nullopt, std::nullopt},
  };
  for (const Case& c : cases)
    EXPECT_EQ(countInterval(c.start, c.end, c.interval), c.expected)
        << c.start.value_or("null") << " " << c.end.value_or("null") << " "
        << c.interval.value_or("null");
}

// Minutes as a clock text and back, with the quirks of each.
TEST(ChildIntervals, MinutesAndClockTexts) {
  EXPECT_EQ(mtt("95"), "01:35");
  EXPECT_EQ(ttm("42"), 42) << "a text without a colon is minutes";
  EXPECT_EQ(inMask("123", "00"), "23") << "the mask's length wins";
}

Value markedRow(const char* mark, const char* source) {
  Map row;
  row.set("autocalc", mark);
  row.set("source", source);
  return Value(std::move(row));
}

TEST(ChildIntervals, AutocalcKeepsThePeriodInStep) {
  List rows{markedRow("start", "22:40"), markedRow("end", "06:10"), markedRow("length", "00:00")};
  autocalc(rows, "end");
  EXPECT_EQ(rows[2]["source"].text(), "07:30");
  rows[2].asMap()->set("source", "01:30");
  autocalc(rows, "length");
  EXPECT_EQ(rows[1]["source"].text(), "00:10");
  rows[0].asMap()->set("source", "23:00");
  autocalc(rows, "start");
  EXPECT_EQ(rows[2]["source"].text(), "01:10");

  // A period not ended yet keeps its length; a form without all three marks is left alone.
  List open{markedRow("start", "10:00"), markedRow("end", ""), markedRow("length", "00:00")};
  autocalc(open, "start");
  EXPECT_EQ(open[2]["source"].text(), "00:00");
  List partial{markedRow("start", "10:00"), markedRow("end", "11:00")};
  autocalc(partial, "end");
  EXPECT_EQ(partial[1]["source"].text(), "11:00");
}

}  // namespace
}  // namespace lad::health
