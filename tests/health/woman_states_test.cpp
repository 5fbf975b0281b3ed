#include "health/woman_states.h"

#include <gtest/gtest.h>

#include "core/ids.h"
#include "health/cycle_days.h"
#include "store/records.h"
#include "store/store.h"
#include "tests/store/day_fixture.h"

namespace lad::health {
namespace {

// The woman's diary on the edition's real template; today is 2026-03-30.
class WomanStatesTest : public testing::DayTest {
 protected:
  void SetUp() override { openEdition(3); }

  Date day(const std::string& text) { return context->dates().dateFromString(text).value(); }

  void mark(const std::string& text, const std::string& type, const std::string& value) {
    StoreBracket bracket = store->connectToBase();
    insertValue(*store, bracket, type, value, day(text), newID2(1, 1), true, false);
  }

  std::vector<CycleDay> year(int y) { return cycleYear(*store, y, testNow()); }
  const CycleDay& at(const std::vector<CycleDay>& days, const std::string& text) {
    return *cycleDayAt(days, context->dates(), day(text));
  }
  // A letter a day from `from` to `to`: Ordinary, Period, oVulation, Bearing; lower case while
  // the phase is open.
  std::string phases(const std::vector<CycleDay>& days, const std::string& from,
                     const std::string& to) {
    std::string out;
    for (Date d = day(from); d <= day(to); d = context->dates().addDays(d, 1)) {
      const CycleDay& c = *cycleDayAt(days, context->dates(), d);
      const char letter = "OPVB"[static_cast<int>(c.phase)];
      out += c.open ? static_cast<char>(std::tolower(letter)) : letter;
    }
    return out;
  }
};

TEST_F(WomanStatesTest, TheYearOpensWithTheLastPhaseMarkBeforeIt) {
  EXPECT_TRUE(prepareWomanData(*store, 2025).empty()) << "no marks, none before";

  mark("2024-12-10", "daytype", "2");
  mark("2024-12-31", "daytype", "4");  // ovulation opens and closes nothing
  mark("2025-01-01", "daytype", "3");  // on the first day itself: in the list, not before it
  mark("2025-03-05", "dieta", "7");
  mark("2026-01-01", "daytype", "2");  // the next year's first day belongs to the list too
  const auto states = prepareWomanData(*store, 2025);
  ASSERT_EQ(states.size(), 4u);
  EXPECT_EQ(states[0].tp, kPeriodFirstDay);
  EXPECT_EQ(states[0].dat, day("2024-12-10"));
  EXPECT_TRUE(states[0].lastmesok);
  EXPECT_EQ(states[1].dat, day("2025-01-01"));
  EXPECT_EQ(states[1].tp, kPeriodLastDay);
  EXPECT_EQ(states[2].tp, kOrdinaryDay) << "a day with only a diet";
  EXPECT_EQ(states[2].dieta, 7);
  EXPECT_EQ(states[3].dat, day("2026-01-01"));
  EXPECT_EQ(states[1].days - states[0].days, 22);

  mark("2025-12-31", "daytype", "2");
  const WomanState opening = prepareWomanData(*store, 2026).front();
  EXPECT_EQ(opening.dat, day("2025-12-31")) << "a first day on 31 December opens the next year";
  EXPECT_EQ(opening.tp, kPeriodFirstDay);
}

TEST_F(WomanStatesTest, PhasesRunFromTheirMarksAndStopAtToday) {
  mark("2026-03-03", "daytype", "2");
  mark("2026-03-07", "daytype", "3");
  mark("2026-03-17", "daytype", "4");
  mark("2026-03-28", "daytype", "2");  // still running today, its last day not marked
  const auto days = year(2026);
  ASSERT_EQ(days.size(), 365u);
  // March, today the 30th: nothing past today.
  EXPECT_EQ(phases(days, "2026-03-01", "2026-03-31"), "OOPPPPPOOOOOOOOOVOOOOOOOOOOpppO");
  EXPECT_EQ(at(days, "2026-03-02").cycleDay, 0) << "no first day marked before it";
  EXPECT_EQ(at(days, "2026-03-17").cycleDay, 15);
  EXPECT_EQ(at(days, "2026-03-28").cycleDay, 1);
  EXPECT_EQ(at(days, "2026-03-31").cycleDay, 0);
}

TEST_F(WomanStatesTest, APhaseOpenedInAnEarlierYearCarriesOnAndOnlyItsOwnMarkClosesIt) {
  mark("2025-11-20", "daytype", "2");
  mark("2025-12-01", "daytype", "5");  // a pregnancy begins; the period was never closed
  mark("2026-01-10", "daytype", "3");  // a period's last day does not end the pregnancy
  mark("2026-02-14", "daytype", "6");
  // The period ran on without its last day until the pregnancy began.
  EXPECT_EQ(phases(year(2025), "2025-11-30", "2025-12-01"), "pB");

  const auto days = year(2026);
  EXPECT_EQ(phases(days, "2026-01-09", "2026-01-11") + phases(days, "2026-02-14", "2026-02-15"),
            "BPBBO");
  EXPECT_EQ(at(days, "2026-01-01").cycleDay, 0) << "no cycle day in a pregnancy";
  EXPECT_EQ(at(days, "2026-02-15").cycleDay, 88) << "counted from 20 November";
}

}  // namespace
}  // namespace lad::health
