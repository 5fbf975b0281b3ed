#include "health/pregnancy_dates.h"

#include "tests/health/health_fixture.h"

namespace lad::health {
namespace {

using testing::HealthTest;
using Field = PregnancyDateField;

class PregnancyDates : public HealthTest {};

constexpr const char* kRefusal =
    "Дата зачатия не может быть раньше первого дня последней менструации или позже этой даты на "
    "36 дней.";

TEST_F(PregnancyDates, NewPregnancyStartsToday) {
  today(at("2026-03-28 23:30"));
  EXPECT_EQ(newPregnancyDates(context),
            (PregnancyDateTexts{"28.03.2026", "11.04.2026", "02.01.2027"}));
}

TEST_F(PregnancyDates, FirstDayOrExpectedBirthMovesTheOtherDates) {
  const PregnancyDateTexts expected{"20.03.2026", "03.04.2026", "25.12.2026"};
  EXPECT_EQ(
      setupCorrectDate(context, {"20.03.2026", "01.01.2020", "01.01.2020"}, Field::Sdat1).fields,
      expected);
  EXPECT_EQ(setupCorrectDate(context, {"01.01.2020", "01.01.2020", "25.12.2026"}, Field::Sbirthdate)
                .fields,
            expected);
}

TEST_F(PregnancyDates, ConceptionMustLieOneTo36DaysAfterTheFirstDay) {
  struct Case {
    const char* sdat2;
    bool accepted;
  };
  const Case cases[] = {
      {"21.03.2026", true},  {"25.04.2026", true},  {"20.03.2026", false}, {"26.04.2026", false},
      {"19.03.2026", false}, {"01.01.2025", false}, {"20.03.2027", false},
  };
  for (const Case& c : cases) {
    const PregnancyDateTexts fields{"20.03.2026", c.sdat2, "01.01.2030"};
    const DateCorrection result = setupCorrectDate(context, fields, Field::Sdat2);
    if (c.accepted) {
      EXPECT_EQ(result.fields, fields) << c.sdat2;
      EXPECT_FALSE(result.refusal) << c.sdat2;
      continue;
    }
    EXPECT_EQ(result.fields, (PregnancyDateTexts{"20.03.2026", "03.04.2026", "01.01.2030"}))
        << c.sdat2;
    ASSERT_TRUE(result.refusal) << c.sdat2;
    EXPECT_EQ(result.refusal->text, kRefusal);
  }
}

TEST_F(PregnancyDates, UnreadableDatesChangeNothing) {
  const std::pair<PregnancyDateTexts, Field> cases[] = {
      {{"", "03.04.2026", "25.12.2026"}, Field::Sdat1},
      {{"31.02.2026", "03.04.2026", "25.12.2026"}, Field::Sdat1},
      {{"20.03.2026", "03.04.2026", "2026-12-25"}, Field::Sbirthdate},
      {{"20.03.2026", "abc", "25.12.2026"}, Field::Sdat2},
      {{"", "03.04.2026", "25.12.2026"}, Field::Sdat2},
  };
  for (const auto& [fields, changed] : cases) {
    const DateCorrection result = setupCorrectDate(context, fields, changed);
    EXPECT_EQ(result.fields, fields) << fields.sdat1 << " " << fields.sdat2;
    EXPECT_FALSE(result.refusal) << fields.sdat1 << " " << fields.sdat2;
  }
}

}  // namespace
}  // namespace lad::health
