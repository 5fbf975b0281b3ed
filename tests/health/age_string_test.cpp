#include <tuple>

#include "health/pregnancy_calendar.h"
#include "tests/health/health_fixture.h"
#include "tests/support/translation_table.h"

namespace lad::health {
namespace {

using testing::HealthTest;

// First day, conception and expected birth of the pregnancy the texts are about: the first
// day lies before both changes of daylight saving time, the expected birth after both.
constexpr const char* kDat1 = "2026-03-20";
constexpr const char* kDat2 = "2026-03-25";
constexpr const char* kBirth = "2026-12-25";  // kDat1 + 280 days

class AgeString : public HealthTest {
 protected:
  Map setup = pregnancy(kDat1, kDat2, kBirth);
};

struct Case {
  AgeMode mode;
  const char* from;  // today is this day moved by `offset` days
  int offset;
  const char* text;
};

using enum AgeMode;

constexpr const char* kEmbryonic = "Эмбриональный (зародышевый) период";
constexpr const char* kFetal = "Фетальный (плодный) период";

const Case kCases[] = {
    {ObstetricAge, kDat1, -1, "-"},
    {ObstetricAge, kDat1, 0, "еще ничего не прошло"},
    {ObstetricAge, kDat1, 1, "1 день"},
    {ObstetricAge, kDat1, 11, "1 неделя и 4 дня"},
    {ObstetricAge, kDat1, 148, "21 неделя и 1 день"},
    {ObstetricAge, kDat1, 294, "ровно 42 недели"},
    {ObstetricAge, kDat1, 295, "-"},
    {TimeLeft, kBirth, -281, "-"},
    {TimeLeft, kBirth, -280, "ровно 40 недель"},
    {TimeLeft, kBirth, 14, "уже скоро"},
    {TimeLeft, kBirth, 15, "-"},
    {ConceptionAge, kDat2, -1, "-"},
    {ConceptionAge, kDat2, 295, "-"},
    {RunningWeek, kDat1, -1, ""},
    {RunningWeek, kDat1, 0, "1 неделя"},
    {RunningWeek, kDat1, 293, "42 неделя"},
    {RunningWeek, kDat1, 294, "-"},
    {ObstetricMonths, kDat1, 0, ""},
    {ObstetricMonths, kDat1, 294, "9 месяцев и 19 дней"},
    {ObstetricMonths, kDat1, 295, "-"},
    {ConceptionMonths, kDat2, 31, "1 месяц"},
    {Percent, kDat1, 0, ""},
    {Percent, kDat1, 1, "0%"},
    {Percent, kDat1, 7, "2%"},  // 2.5 rounds to even
    {Percent, kDat1, 300, "100%"},
    {EmbryoWeek, kDat2, -3, "1"},
    {EmbryoWeek, kDat2, 6, "1"},
    {EmbryoWeek, kDat2, 7, "2"},
    {EmbryoWeek, kDat2, 300, "43"},
    {PeriodName, kDat2, -1, "Зачатия еще не произошло"},
    {PeriodName, kDat2, 0, "Зачатие"},
    {PeriodName, kDat2, 1, kEmbryonic},
    {PeriodName, kDat2, 56, kFetal},
    {RunningDay, kDat1, 0, "идет 1 день 1 недели"},
    {RunningDay, kDat1, 293, "идет 7 день 42 недели"},
    {RunningDay, kDat1, 294, "-"},
    {PassedTime, kDat1, 0, ""},
    {PassedTime, kDat1, 7, "Прошла ровно 1 неделя"},
    {PassedTime, kDat1, 300, "Прошло 42 недели и 6 дней"},
};

TEST_F(AgeString, EveryModeAtItsLimitsAcrossDaylightSaving) {
  for (const Case& c : kCases) {
    for (const char* time : {"00:30", "23:30"}) {
      today(after(c.from, c.offset, time));
      EXPECT_EQ(ageString(context, c.mode, setup), c.text)
          << "mode " << static_cast<int>(c.mode) << ", " << c.from << " + " << c.offset << " "
          << time;
    }
  }
}

TEST_F(AgeString, CountsOverTheAutumnChange) {
  setup.set("dat1", at("2026-10-20"));
  const std::tuple<AgeMode, int, const char*> cases[] = {
      {ObstetricAge, 6, "6 дней"},
      {ObstetricAge, 7, "ровно 1 неделя"},
      {RunningDay, 6, "идет 7 день 1 недели"},
      {RunningWeek, 7, "2 неделя"},
  };
  for (const auto& [mode, offset, text] : cases) {
    for (const char* time : {"00:30", "23:30"}) {
      today(after("2026-10-20", offset, time));
      EXPECT_EQ(ageString(context, mode, setup), text) << offset << " " << time;
    }
  }
}

TEST_F(AgeString, UnknownDatesGiveTheEmptyMarks) {
  today(at("2026-05-01 12:00"));
  const Map nothing;
  const char* expected[] = {"-", "-", "-", "", "", "", "", "1", "", "", "-", "", ""};
  for (int mode = 1; mode <= 13; ++mode)
    EXPECT_EQ(ageString(context, static_cast<AgeMode>(mode), nothing), expected[mode - 1])
        << "mode " << mode;
}

class GermanAgeString : public HealthTest {
 protected:
  GermanAgeString() : HealthTest(2) {
    testing::germanTranslator(dir.path() / "translate.sqlite",
                              {{"идет %d день %d недели", "Tag %d der %d. Woche"},
                               {"%d %@ и %d %@", "%d %@ und %d %@"},
                               {"неделя", "Woche"},
                               {"дня", "Tage"},
                               {"Прошла", "Vergangen:"}});
    context.prepareTranslate();
  }
};

TEST_F(GermanAgeString, PatternsAndWordsPassThroughTheTranslationTable) {
  const Map setup = pregnancy(kDat1, kDat2, kBirth);
  today(after(kDat1, 9, "12:00"));
  EXPECT_EQ(ageString(context, ObstetricAge, setup), "1 Woche und 2 Tage");
  EXPECT_EQ(pregnancyStateLine(context, setup),
            "Vergangen: 1 Woche und 2 Tage,\nTag 3 der 2. Woche");
}

}  // namespace
}  // namespace lad::health
