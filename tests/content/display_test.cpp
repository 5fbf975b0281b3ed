#include "content/display.h"

#include <gtest/gtest.h>

#include "core/ids.h"

namespace lad::content {
namespace {

const DateCodec& berlin() {
  static const DateCodec codec("Europe/Berlin", 1);
  return codec;
}

TEST(Display, FillsTemplateByPlainSubstringsAndCalendarDays) {
  // Berlin leaves summer time on 2026-10-25: seconds would put week 4 on the 25th.
  const Date start = berlin().encodeDate(5, 10, 2026);
  struct Case {
    const char* format;
    const char* text;
    const char* shown;
  };
  const Case cases[] = {
      {"CAP (WS4-WE5)", "Анализы", "Анализы (26.10-08.11)"},
      {"WS1 WS10", "", "05.10 05.100"},  // WS1 also replaces the head of WS10
      {"WE3", "", "25.10"},
      {"CAP and CAP", "CAPx", "CAPxx and CAPxx"},  // each CAP token replaces in turn
      {"(WS)-WSx CAPS", "t", "(WS)-28.09 CAPS"},
  };
  for (const Case& c : cases)
    EXPECT_EQ(shownText(c.format, c.text, start, berlin()), c.shown) << c.format;
  // A week number far out of range still gives a date.
  EXPECT_EQ(fillTemplate("WE99999999999", "", start, berlin()).size(), 5u);
}

TEST(Display, MakesShortTickIdentifiersFull) {
  EXPECT_EQ(tickGuid("123456789"), newID2(2, 123456789));
  EXPECT_EQ(tickGuid("1234567890"), "1234567890");
  EXPECT_EQ(tickGuid("пятьбукв"), newID2(2, 0));  // eight characters in sixteen bytes
  EXPECT_EQ(tickGuid(""), newID2(2, 0));
}

}  // namespace
}  // namespace lad::content
